#include "tests/run/rule_text.h"

#include "run/totals.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using run::Reading;

template <typename T>
Reading<T> failing() {
    return Reading<T>(std::make_exception_ptr(std::runtime_error("This lookup fails")));
}

run::Employee employee(int id) {
    return {id, QStringLiteral("P%1").arg(id), QStringLiteral("N%1").arg(id), QStringLiteral("Nama %1").arg(id)};
}

/// Two groups, each with one component of its own amount: employees 1 and 2 in group 1, 2 and 3 in group 2.
SmallCompany twoGroups() {
    SmallCompany company = smallCompany({QStringLiteral("com=1 uang=100")}, {});
    company.selections.groups = {2, 1};
    run::RulesByComponent rules = company.tables.rules.value();
    run::Rule other = ruleOf(QStringLiteral("com=1 uang=200"));
    other.grp_id = 2;
    rules.insert({2, 1}, {other});
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

/// "line:employee (rows)" of every line.
std::string linesOf(const SmallCompany& company, run::Notice expected = run::Notice::None) {
    run::MemoryLookups lookups(company.selections.period, company.tables);
    run::Run made;
    EXPECT_EQ(proses(made, company.selections, lookups), expected);
    QStringList lines;
    for (const run::Line& line : made.lines)
        lines << QStringLiteral("%1:%2 (%3)")
                     .arg(line.no_urut)
                     .arg(line.pin, describe(line.rows).join(QStringLiteral("; ")));
    return lines.join(QStringLiteral(", ")).toStdString();
}

run::LoanPayment loan(int com_id, double amount) {
    return {com_id, QStringLiteral("L%1").arg(com_id), QStringLiteral("Pinjaman %1").arg(com_id), amount};
}

std::string rowsWithLoans(const QStringList& rules, const std::vector<run::LoanPayment>& payments) {
    SmallCompany company = smallCompany(rules, {});
    company.selections.loans = run::LoanTest::Period;
    company.tables.loans = Reading(run::LoansByEmployee{{7, payments}});
    return linesOf(company);
}

} // namespace

TEST(Assembly, WalksGroupsInOrderOfTickingWithOneLineForEachGroupOfAnEmployee) {
    EXPECT_EQ(linesOf(twoGroups()), "1:P2 (1: 200 x 1 (+) [* 200]), 2:P3 (1: 200 x 1 (+) [* 200]), "
                                    "3:P1 (1: 100 x 1 (+) [* 100]), 4:P2 (1: 100 x 1 (+) [* 100])");
}

TEST(Assembly, TakesComponentsByNumberNotByTypeAndSkipsThoseWithoutARule) {
    SmallCompany company = smallCompany({QStringLiteral("com=1 param uang=10"),
                                         QStringLiteral("com=2 typex=1 param uang=3"), QStringLiteral("com=3 sum=k2")},
                                        {});
    company.selections.components = {{.com_id = 3, .no_urut = 5},
                                     {.com_id = 9, .no_urut = 3},
                                     {.com_id = 2, .no_urut = 4},
                                     {.com_id = 1, .no_urut = 20}};
    EXPECT_EQ(linesOf(company), "1:0007 (2: 3 x 1 (-) [* 3]; 3: 3 x 3 (+) []; 1: 10 x 1 (+) [* 10])");
}

TEST(Assembly, AComponentChosenTwiceAddsOverThePeriodButNotPerDay) {
    SmallCompany company = smallCompany({QStringLiteral("com=1 uang=10"), QStringLiteral("com=2 hitung=1 uang=10")},
                                        QStringLiteral("f13=0,0"));
    company.selections.components.push_back({.com_id = 1, .no_urut = 3});
    company.selections.components.push_back({.com_id = 2, .no_urut = 4});
    EXPECT_EQ(linesOf(company), "1:0007 (1: 20 x 2 (+) [* 10]; 2: 20 x 2 (+) [* 10])");
}

TEST(Assembly, ForgetsTheValuesOfOneEmployeeBeforeTheNext) {
    SmallCompany company = twoGroups();
    company.selections.groups = {1};
    company.selections.components = {{.com_id = 1, .no_urut = 1}, {.com_id = 2, .no_urut = 2}};
    run::RulesByComponent rules;
    rules.insert({1, 1}, {ruleOf(QStringLiteral("com=1 param if=f13 min=1 uang=100"))});
    rules.insert({1, 2}, {ruleOf(QStringLiteral("com=2 sum=k1"))});
    company.tables.rules = Reading(rules);
    company.tables.referenceNames = Reading(QHash<int, QString>{{1, QStringLiteral("Komponen 1")}});
    company.tables.places = {{1, 0}, {2, 1}};
    company.tables.figures[{13, run::FigureRead::Grain::Period, run::FigureRead::Form::AsSet}] =
        Reading(run::FigureValues{5, 0});
    EXPECT_EQ(linesOf(company), "1:P1 (1: 100 x 1 (+) [* 100]; 2: 100 x 100 (+) []), "
                                "2:P2 (1: 0 x 0 (+) []; 2: 0 x 0 (+) [])");
}

TEST(Assembly, GuardsLoseOnlyWhatHangsOnTheFault) {
    SmallCompany members = twoGroups();
    members.tables.members[2] = failing<std::vector<run::Employee>>();
    EXPECT_EQ(linesOf(members), "1:P1 (1: 100 x 1 (+) [* 100]), 2:P2 (1: 100 x 1 (+) [* 100])") << "members of a group";

    SmallCompany rules = twoGroups();
    rules.selections.groups = {1};
    rules.selections.loans = run::LoanTest::Month;
    rules.tables.rules = failing<run::RulesByComponent>();
    rules.tables.loans = Reading(run::LoansByEmployee{{2, {loan(4, 50)}}});
    EXPECT_EQ(linesOf(rules), "1:P1 (), 2:P2 (4: 50 x 1 (-) [ x Angsuran])") << "rules";

    SmallCompany loans = twoGroups();
    loans.selections.groups = {1};
    loans.selections.loans = run::LoanTest::Period;
    loans.tables.loans = failing<run::LoansByEmployee>();
    EXPECT_EQ(linesOf(loans), "1:P1 (1: 100 x 1 (+) [* 100]), 2:P2 (1: 100 x 1 (+) [* 100])") << "loans";

    SmallCompany daily = smallCompany(
        {QStringLiteral("com=1 uang=1"), QStringLiteral("com=2 hitung=1 uang=5e14"), QStringLiteral("com=3 uang=1")},
        {});
    daily.selections.loans = run::LoanTest::Period;
    daily.tables.loans = Reading(run::LoansByEmployee{{7, {loan(4, 50)}}});
    EXPECT_EQ(linesOf(daily), "1:0007 (1: 1 x 1 (+) [* 1]; 4: 50 x 1 (-) [ x Angsuran])") << "sum of days";
}

TEST(Loans, CountPerEmployeeFromTheLastNewRowOn) {
    const QStringList none{QStringLiteral("com=9 uang=1")};
    const std::string rule = "1:0007 (9: 1 x 1 (+) [* 1]";
    EXPECT_EQ(rowsWithLoans(none, {loan(4, 100), loan(4, 20.5)}), rule + "; 4: 120.5 x 2 (-) [ x Angsuran])");
    EXPECT_EQ(rowsWithLoans(none, {loan(4, 1), loan(5, 2), loan(4, 4), loan(5, 8)}),
              rule + "; 4: 5 x 2 (-) [ x Angsuran]; 5: 10 x 3 (-) [ x Angsuran])");
    EXPECT_EQ(rowsWithLoans(none, {loan(0, 100), loan(4, 7)}), rule + "; 4: 7 x 1 (-) [ x Angsuran])");
    EXPECT_EQ(rowsWithLoans({QStringLiteral("com=4 uang=30 typex=1"), QStringLiteral("com=4 uang=30")},
                            {loan(4, 100), loan(4, 20)}),
              "1:0007 (4: 180 x 2 (-) [* 30])");
    EXPECT_EQ(rowsWithLoans({QStringLiteral("com=4 uang=30")}, {loan(4, 100)}), "1:0007 (4: 130 x 1 (+) [* 30])");
}

TEST(Loans, AloneLeaveNothingOfTheEmployeeInTheRun) {
    SmallCompany company = smallCompany({QStringLiteral("com=9 if=f13 min=1 uang=1")}, QStringLiteral("f13=0"));
    company.selections.loans = run::LoanTest::Period;
    company.tables.loans = Reading(run::LoansByEmployee{{7, {loan(4, 50)}}});
    run::MemoryLookups lookups(company.selections.period, company.tables);
    run::Run made;
    ASSERT_EQ(proses(made, company.selections, lookups), run::Notice::None);
    ASSERT_EQ(made.lines.at(0).rows.size(), 2U);
    hitung(made, 0);
    EXPECT_TRUE(made.lines.empty());
    EXPECT_EQ(made.tot_process, -50);
    // The empty row went first, when the loan row held the last number: one number is not given free.
    EXPECT_EQ(made.nomor_baris_terakhir, 1);
}

TEST(TickedEmployees, AreComputedOncePerTickWithTheirFirstGroup) {
    SmallCompany company = twoGroups();
    company.selections.employees = choice({{2, true}, {3, false}, {1, true}, {2, true}, {99, true}});
    EXPECT_EQ(linesOf(company), "1:P2 (1: 200 x 1 (+) [* 200]), 2:P1 (1: 100 x 1 (+) [* 100]), "
                                "3:P2 (1: 200 x 1 (+) [* 200])");
}

TEST(TickedEmployees, AreToldOfAnEmptyListAndOfMoreThan200Ticks) {
    SmallCompany company = twoGroups();
    company.selections.employees = choice({});
    EXPECT_EQ(linesOf(company, run::Notice::NoEmployees), "");
    company.selections.employees = choice({{2, false}});
    EXPECT_EQ(linesOf(company), "");

    run::EmployeeChoice many = choice({{1, false}});
    many.clb_emp_id.insert(many.clb_emp_id.end(), 200, {99, true});
    company.selections.employees = many;
    EXPECT_EQ(linesOf(company), "") << "200 ticks";
    many.clb_emp_id.push_back({1, true});
    company.selections.employees = many;
    EXPECT_EQ(linesOf(company, run::Notice::MoreThan200Employees), "1:P1 (1: 100 x 1 (+) [* 100])") << "201 ticks";
}

TEST(Assembly, ReplacesTheFormerLinesAndNumbersOnFromWhatTheirDeletionLeft) {
    const SmallCompany company = twoGroups();
    run::MemoryLookups lookups(company.selections.period, company.tables);
    run::Run made;
    std::vector<int> told;
    EXPECT_EQ(proses(made, company.selections, lookups, [&](int done) { told.push_back(done); }), run::Notice::None);
    EXPECT_EQ(told, (std::vector{1, 2, 3, 4}));
    EXPECT_EQ(made.lines.back().rows.back().no_urut_ref, 4);
    // With rows 2 and 3 gone by hand, deleting the rest gives only the number 4 free.
    made.deleteRow(made.lines[1], 0);
    made.deleteRow(made.lines[2], 0);
    EXPECT_EQ(proses(made, company.selections, lookups), run::Notice::None);
    EXPECT_EQ(made.lines.front().no_urut, 1);
    EXPECT_EQ(made.lines.front().rows.front().no_urut_ref, 4);
}
