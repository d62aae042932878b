#include "tests/run/form_run.h"
#include "tests/run/rule_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using run::Reading;

template <typename T>
Reading<T> failing() {
    return Reading<T>(std::make_exception_ptr(std::runtime_error("This lookup fails")));
}

run::Employee employee(int id) {
    return {id, u"P%1"_s.arg(id), u"N%1"_s.arg(id), u"Nama %1"_s.arg(id)};
}

/// Two groups, each with one component of its own amount: employees 1 and 2 in group 1, 2 and 3 in group 2.
SmallCompany twoGroups(std::vector<int> chosen) {
    SmallCompany company = smallCompany(u"uang=100"_s);
    company.selections.groups = std::move(chosen);
    run::RulesByComponent rules{{{1, 1}, {ruleOf(u"uang=100"_s)}}, {{2, 1}, {ruleOf(u"uang=200"_s)}}};
    rules[{2, 1}].front().grp_id = 2;
    company.tables.rules = Reading(rules);
    company.tables.memberships = Reading(run::Memberships{{1, 1}, {1, 2}, {2, 2}, {2, 3}});
    company.tables.members[1] = Reading(std::vector{employee(1), employee(2)});
    company.tables.members[2] = Reading(std::vector{employee(2), employee(3)});
    return company;
}

run::EmployeeChoice choice(std::initializer_list<std::pair<int, bool>> items) {
    run::EmployeeChoice made;
    for (const auto& [id, ticked] : items)
        made.clb_emp_id.push_back({id, ticked});
    made.vir_emp = {{employee(2), 2}, {employee(3), 2}, {employee(1), 1}};
    return made;
}

/// "employee (rows)" of every line.
std::string linesOf(const SmallCompany& company, run::Notice expected = run::Notice::None) {
    QStringList lines;
    for (const run::Line& line : company.computed(expected).lines)
        lines << u"%1 (%2)"_s.arg(line.pin, describe(line.rows));
    return lines.join(u", "_s).toStdString();
}

SmallCompany withLoans(SmallCompany company, int employee, const std::vector<std::pair<int, double>>& payments) {
    run::LoansByEmployee loans;
    for (const auto& [com_id, amount] : payments)
        loans[employee].push_back({com_id, u"L%1"_s.arg(com_id), u"Pinjaman %1"_s.arg(com_id), amount});
    company.selections.loans = run::LoanTest::Period;
    company.tables.loans = Reading(loans);
    return company;
}

} // namespace

TEST(Assembly, TakesComponentsByNumberNotByTypeAndSkipsThoseWithoutARule) {
    SmallCompany company = smallCompany(u"param uang=10; com=2 typex=1 param uang=3; com=3 sum=k2"_s);
    company.selections.components = {{.com_id = 3, .no_urut = 5},
                                     {.com_id = 9, .no_urut = 3},
                                     {.com_id = 2, .no_urut = 4},
                                     {.com_id = 1, .no_urut = 20}};
    EXPECT_EQ(linesOf(company), "0007 (2: 3 x 1 (-) [* 3]; 3: 3 x 3 (+) []; 1: 10 x 1 (+) [* 10])");
}

TEST(Assembly, AComponentChosenTwiceAddsOverThePeriodButNotPerDay) {
    SmallCompany company = smallCompany(u"uang=10; com=2 hitung=1 uang=10"_s, u"f13=0,0"_s);
    company.selections.components.push_back({.com_id = 1, .no_urut = 3});
    company.selections.components.push_back({.com_id = 2, .no_urut = 4});
    EXPECT_EQ(linesOf(company), "0007 (1: 20 x 2 (+) [* 10]; 2: 20 x 2 (+) [* 10])");
}

TEST(Assembly, ForgetsTheValuesOfOneEmployeeBeforeTheNext) {
    SmallCompany company = smallCompany(u"param if=f13 min=1 uang=100; com=2 sum=k1"_s);
    company.tables.memberships = Reading(run::Memberships{{1, 1}, {1, 2}});
    company.tables.members[1] = Reading(std::vector{employee(1), employee(2)});
    company.tables.places = {{1, 0}, {2, 1}};
    company.tables.figures[{13, run::FigureRead::Grain::Period, run::FigureRead::Form::AsSet}] =
        Reading(run::FigureValues{5, 0});
    EXPECT_EQ(linesOf(company), "P1 (1: 100 x 1 (+) [* 100]; 2: 100 x 100 (+) []), "
                                "P2 (1: 0 x 0 (+) []; 2: 0 x 0 (+) [])");
}

TEST(Assembly, GuardsLoseOnlyWhatHangsOnTheFault) {
    const std::string both = "P1 (1: 100 x 1 (+) [* 100]), P2 (1: 100 x 1 (+) [* 100])";
    SmallCompany members = twoGroups({2, 1});
    members.tables.members[2] = failing<std::vector<run::Employee>>();
    EXPECT_EQ(linesOf(members), both) << "members of a group";

    SmallCompany rules = withLoans(twoGroups({1}), 2, {{4, 50}});
    rules.tables.rules = failing<run::RulesByComponent>();
    EXPECT_EQ(linesOf(rules), "P1 (), P2 (4: 50 x 1 (-) [ x Angsuran])") << "rules";

    SmallCompany loans = withLoans(twoGroups({1}), 2, {});
    loans.tables.loans = failing<run::LoansByEmployee>();
    EXPECT_EQ(linesOf(loans), both) << "loans";

    const SmallCompany daily = smallCompany(u"uang=1; com=2 hitung=1 uang=5e14; com=3 uang=1"_s);
    EXPECT_EQ(linesOf(withLoans(daily, 7, {{4, 50}})), "0007 (1: 1 x 1 (+) [* 1]; 4: 50 x 1 (-) [ x Angsuran])")
        << "sum of days";
}

TEST(Loans, CountPerEmployeeFromTheLastNewRowOn) {
    const struct {
        const char* rules;
        std::vector<std::pair<int, double>> payments;
        const char* rows;
    } cases[] = {
        {"com=9 uang=1", {{4, 100}, {4, 20.5}}, "9: 1 x 1 (+) [* 1]; 4: 120.5 x 2 (-) [ x Angsuran]"},
        {"com=9 uang=1",
         {{4, 1}, {5, 2}, {4, 4}, {5, 8}},
         "9: 1 x 1 (+) [* 1]; 4: 5 x 2 (-) [ x Angsuran]; 5: 10 x 3 (-) [ x Angsuran]"},
        {"com=9 uang=1", {{0, 100}, {4, 7}}, "9: 1 x 1 (+) [* 1]; 4: 7 x 1 (-) [ x Angsuran]"},
        {"com=4 uang=30 typex=1; com=4 uang=30", {{4, 100}, {4, 20}}, "4: 180 x 2 (-) [* 30]"},
        {"com=4 uang=30", {{4, 100}}, "4: 130 x 1 (+) [* 30]"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(linesOf(withLoans(smallCompany(QString::fromUtf8(c.rules)), 7, c.payments)),
                  std::string("0007 (") + c.rows + ')');
}

TEST(Loans, AloneLeaveNothingOfTheEmployeeInTheRun) {
    const run::Run made = withLoans(smallCompany(u"com=9 if=f13 min=1 uang=1"_s, u"f13=0"_s), 7, {{4, 50}}).computed();
    ASSERT_EQ(made.lines.at(0).rows.size(), 2U);
    FormRun form(made);
    (void)form.copy.hitung();
    EXPECT_EQ(form.text(), "total -50");
    // The empty row went first, when the loan row held the last number: one number is not given free.
    form.copy.appendRun(made);
    EXPECT_EQ(form.text(), "1=0 (2:0 3:50), total -50");
}

TEST(LeftOut, NamesTheFirstReasonThatHoldsForEachPersonWithoutALine) {
    SmallCompany nobodysRules = withLoans(smallCompany(u"uang=5"_s), 7, {{4, 50}});
    nobodysRules.tables.memberships = Reading(run::Memberships{});
    SmallCompany someLines = twoGroups({1, 2});
    someLines.tables.rules =
        Reading(run::RulesByComponent{{{1, 1}, {ruleOf(u"uang=0"_s)}}, {{2, 1}, {ruleOf(u"uang=5"_s)}}});
    const struct {
        SmallCompany company;
        const char* expected;
    } cases[] = {
        {smallCompany(u"uang=5"_s), ""},
        {smallCompany(u"if=f13 min=1 uang=5"_s, u"f13=0"_s), "0007 3 "},
        {smallCompany(u"uang=3; com=2 typex=1 uang=3"_s), "0007 2 "},
        {smallCompany(u"sum=f13 op=/ konst=0; com=2 typex=1 uang=3"_s, u"f13=4"_s), "0007 0 Division by zero"},
        {smallCompany(u"hitung=1 sum=f13 op=/ konst=0"_s, u"f13=4,5"_s), "0007 0 Division by zero"},
        {smallCompany(u"sum=f13"_s, u"f13=!"_s), "0007 0 lost"},
        {nobodysRules, "0007 1 "},
        {someLines, "P1 3 "},
    };
    for (const auto& c : cases) {
        const run::Run made = c.company.computed();
        FormRun form(made);
        QStringList people;
        for (const run::LeftOut& person : leftOut(made, form.copy.hitung()))
            people << u"%1 %2 %3"_s.arg(person.pin).arg(int(person.why)).arg(person.fault);
        EXPECT_EQ(people.join(u", "_s).toStdString(), c.expected) << describe(made.lines.front().rows).toStdString();
    }
}

TEST(TickedEmployees, AreComputedOncePerTickWithTheirFirstGroup) {
    SmallCompany company = twoGroups({2, 1});
    company.selections.employees = choice({{2, true}, {3, false}, {1, true}, {2, true}, {99, true}});
    EXPECT_EQ(linesOf(company), "P2 (1: 200 x 1 (+) [* 200]), P1 (1: 100 x 1 (+) [* 100]), "
                                "P2 (1: 200 x 1 (+) [* 200])");
    company.selections.employees = choice({});
    EXPECT_EQ(linesOf(company, run::Notice::NoEmployees), "");
    company.selections.employees = choice({{2, false}});
    EXPECT_EQ(linesOf(company), "");
}

TEST(Assembly, ReplacesTheFormerLinesAndTellsEachEmployeeThatIsDone) {
    const SmallCompany company = twoGroups({2, 1});
    run::MemoryLookups lookups(company.selections.period, company.tables);
    run::Run made;
    made.lines.resize(9);
    std::vector<int> told;
    EXPECT_EQ(proses(made, company.selections, lookups, [&](int done) { told.push_back(done); }), run::Notice::None);
    EXPECT_EQ(told, (std::vector{1, 2, 3, 4}));
    EXPECT_EQ(made.lines.size(), 4U);
}
