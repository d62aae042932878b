#include "tests/support/test_database.h"
#include "tools/company/generate.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Sums of all rows of all tables.
QString checksum(TestDatabase& company) {
    const QString main = company.rows(u"SHOW TABLES"_s).join(u','), app = company.rowsApp(u"SHOW TABLES"_s).join(u',');
    const QStringList sums = company.rows(u"CHECKSUM TABLE "_s + main) + company.rowsApp(u"CHECKSUM TABLE "_s + app);
    return sums.join(u' ').remove(company.mainSettings().database);
}

company::Options demo() {
    return {.lastMonth = QDate(2026, 10, 14)};
}

/// One company for all questions that only read.
TestDatabase& demoCompany() {
    static TestDatabase one(demo());
    return one;
}

/// Each question with the rows that answer it.
void expectAnswers(std::initializer_list<std::pair<QString, const char*>> cases) {
    for (const auto& [question, rows] : cases)
        EXPECT_EQ(demoCompany().rows(question).join(u'\n').toStdString(), rows) << question.toStdString();
}

TEST(Company, SameOptionsGiveTheSameRowsAndAnotherSeedOthers) {
    const QString first = checksum(demoCompany());
    company::Options options = demo();
    TestDatabase again(options);
    EXPECT_EQ(checksum(again), first);
    options.seed = 2;
    TestDatabase different(options);
    EXPECT_NE(checksum(different), first);
}

TEST(Company, NoRowStandsAlone) {
    const std::tuple<QString, QString, QString> cases[] = {
        // key, table that holds it, tables that refer to it
        {u"cab_id_auto"_s, u"cabang"_s, u"emp"_s},
        {u"dept_id_auto"_s, u"dept"_s, u"emp"_s},
        {u"func_id_auto"_s, u"func"_s, u"emp"_s},
        {u"emp_id_auto"_s, u"emp"_s, u"shift_result date_temp ex_absent free_ot_result_m z_pay_grp_emp zx_kredit_m"_s},
        {u"com_id"_s, u"z_pay_com"_s, u"z_pay_grp_com z_pay_money zx_jns_krd"_s},
        {u"grp_id"_s, u"z_pay_grp"_s, u"z_pay_grp_com z_pay_grp_emp"_s},
        {u"emp_id_auto"_s, u"z_pay_grp_emp"_s, u"z_pay_money"_s},
        {u"krd_id"_s, u"zx_jns_krd"_s, u"zx_kredit_m"_s},
        {u"id_kredit"_s, u"zx_kredit_m"_s, u"zx_kredit_d zx_bayar_kredit"_s},
    };
    for (const auto& [key, parent, children] : cases)
        for (const QString& child : children.split(u' '))
            expectAnswers(
                {{u"SELECT count(*)>0, sum(%2 NOT IN (SELECT %2 FROM %3)) FROM %1"_s.arg(child, key, parent), "1\t0"}});
    expectAnswers({{uR"(SELECT dept_name FROM dept WHERE dept_name LIKE '%\\\\%' AND
                          left(dept_name, length(dept_name)-length(substring_index(dept_name, '\\', -1))-1)
                            NOT IN (SELECT dept_name FROM dept))"_s,
                    ""}});
}

// Sources: 0 an attendance figure, 1 a component; -1 none.
TEST(Company, EveryRuleCanBeEvaluated) {
    const QString rulesWhere = u"SELECT r.grp_id, r.com_id, r.no_urut_ref FROM z_pay_grp_com AS r "
                               "JOIN z_pay_com AS c ON c.com_id=r.com_id WHERE "_s;
    const QString unknownSource = rulesWhere + uR"(
        (r.use_kode_%1=0 AND r.id_kode_%1 NOT IN (SELECT id_kode_report FROM z_pay_report)) OR
        (r.use_kode_%1=1 AND r.id_kode_%1 NOT IN
          (SELECT o.com_id FROM z_pay_com AS o WHERE o.param=-1 AND o.no_urut<c.no_urut)))"_s;
    expectAnswers({
        {unknownSource.arg(u"if"_s), ""},
        {unknownSource.arg(u"sum"_s), ""},
        {rulesWhere + u"(r.use_if_sum=-1 AND r.use_kode_if NOT IN (0, 1)) OR (r.use_sum=-1 AND "
                      "r.use_kode_sum NOT IN (0, 1)) OR c.pinjaman=-1"_s,
         ""},
        {u"SELECT count(DISTINCT no_urut)=count(*), max(length(com_kode)), max(length(com_name))<=30 FROM z_pay_com"_s,
         "1\t3\t1"},
        {u"SELECT emp_id_auto FROM z_pay_grp_emp GROUP BY 1 HAVING count(*)>1"_s, ""},
    });
}

TEST(Company, AFinishedOneIsKeptAndItsLanguageChanged) {
    db::ConnectionSettings settings = demoCompany().mainSettings();
    EXPECT_THROW(company::generate(settings, demo()), db::Fault);
    EXPECT_TRUE(company::exists(settings));
    company::setLanguage(settings, u"english"_s);
    EXPECT_EQ(demoCompany().rowsApp(u"SELECT param_value FROM global_setting WHERE param_id='default_lang'"_s),
              QStringList{u"english"_s});
    company::setLanguage(settings, u"indonesia"_s);
    settings.database += u"_none"_s;
    EXPECT_FALSE(company::exists(settings));
}

} // namespace
