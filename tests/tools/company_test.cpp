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

std::string demoRows(const QString& sql) {
    return demoCompany().rows(sql).join(u'\n').toStdString();
}

TEST(Company, SameOptionsGiveTheSameRowsAndAnotherSeedOthers) {
    const QString first = checksum(demoCompany());
    TestDatabase again(demo());
    EXPECT_EQ(checksum(again), first);
    company::Options other = demo();
    other.seed = 2;
    TestDatabase different(other);
    EXPECT_NE(checksum(different), first);
}

TEST(Company, HasAllThatItsSizeAsksFor) {
    EXPECT_EQ(demoRows(uR"(
        SELECT (SELECT count(*) FROM emp WHERE emp_id_auto<>-1), (SELECT count(*) FROM emp WHERE emp_id_auto=-1),
               (SELECT count(*) FROM emp WHERE emp_status=1), (SELECT count(*) FROM cabang),
               (SELECT max(length(dept_name)-length(replace(dept_name, '\\', ''))) FROM dept),
               (SELECT count(DISTINCT cab_id_auto) FROM emp), (SELECT count(DISTINCT func_id_auto) FROM emp),
               (SELECT count(DISTINCT pin) FROM emp))"_s),
              "60\t1\t3\t3\t2\t3\t11\t61");
    EXPECT_EQ(demoRows(u"SELECT min(d), max(d) FROM (SELECT shift_date AS d FROM shift_result UNION ALL "
                       "SELECT date_temp FROM date_temp) AS days"_s),
              "2026-08-01\t2026-10-31");
    EXPECT_EQ(demoRows(u"SELECT sum(pin REGEXP '^0'), sum(pin REGEXP '^[A-Z]'), sum(pin LIKE '% %') > 0, "
                       "sum(nik IS NULL) > 0 FROM emp WHERE emp_id_auto<>-1"_s),
              "5\t14\t1\t1");
    EXPECT_EQ(demoRows(u"SELECT DISTINCT absent_id FROM date_temp WHERE absent_id<=6 ORDER BY 1"_s),
              "1\n2\n3\n4\n5\n6");
    EXPECT_EQ(demoRows(u"SELECT status, status_lunas, count(*)>0 FROM zx_kredit_m GROUP BY 1, 2"_s),
              "-1\t-1\t1\n-1\t0\t1\n0\t0\t1");
    EXPECT_EQ(demoRows(u"SELECT count(*)>0 FROM zx_bayar_kredit WHERE tgl_bayar>='2026-10-01'"_s), "1");
    EXPECT_EQ(demoRows(u"SELECT DISTINCT module FROM user_log ORDER BY 1"_s), "1\n2\n3\n4\n5\n6");
    EXPECT_EQ(demoCompany().rowsApp(u"SELECT group_id_auto=1, count(*)>1 FROM user_login GROUP BY 1"_s),
              QStringList({u"0\t1"_s, u"1\t1"_s}));
}

TEST(Company, NoRowStandsAlone) {
    const std::pair<const char*, QStringList> parents[] = {
        {"cab_id_auto cabang", {u"emp"_s}},
        {"dept_id_auto dept", {u"emp"_s}},
        {"func_id_auto func", {u"emp"_s}},
        {"emp_id_auto emp",
         u"shift_result date_temp ex_absent free_ot_result_m z_pay_grp_emp zx_kredit_m"_s.split(u' ')},
        {"com_id z_pay_com", u"z_pay_grp_com z_pay_money zx_jns_krd"_s.split(u' ')},
        {"grp_id z_pay_grp", u"z_pay_grp_com z_pay_grp_emp"_s.split(u' ')},
        {"emp_id_auto z_pay_grp_emp", {u"z_pay_money"_s}},
        {"krd_id zx_jns_krd", {u"zx_kredit_m"_s}},
        {"id_kredit zx_kredit_m", u"zx_kredit_d zx_bayar_kredit"_s.split(u' ')},
    };
    for (const auto& [parent, children] : parents)
        for (const QString& child : children)
            EXPECT_EQ(demoRows(u"SELECT (SELECT count(*) FROM %1)>0, "
                               "(SELECT count(*) FROM %1 WHERE %2 NOT IN (SELECT %2 FROM %3))"_s.arg(
                                   child, QString::fromLatin1(parent).section(u' ', 0, 0),
                                   QString::fromLatin1(parent).section(u' ', 1))),
                      "1\t0")
                << child.toStdString() << ' ' << parent;
    EXPECT_EQ(demoRows(u"SELECT dept_name FROM dept WHERE dept_name LIKE '%\\\\\\\\%' AND "
                       "substring(dept_name, 1, length(dept_name)-length(substring_index(dept_name, "
                       "'\\\\', -1))-1) NOT IN (SELECT dept_name FROM dept)"_s),
              "");
}

// Sources: 0 an attendance figure, 1 a component; -1 none.
TEST(Company, EveryRuleCanBeEvaluated) {
    const QString rulesWhere = u"SELECT r.grp_id, r.com_id, r.no_urut_ref FROM z_pay_grp_com AS r "
                               "JOIN z_pay_com AS c ON c.com_id=r.com_id WHERE "_s;
    for (const QString& side : {u"if"_s, u"sum"_s})
        EXPECT_EQ(demoRows(rulesWhere + u"(r.use_kode_%1=0 AND r.id_kode_%1 NOT IN (SELECT id_kode_report FROM "
                                        "z_pay_report)) OR (r.use_kode_%1=1 AND r.id_kode_%1 NOT IN (SELECT o.com_id "
                                        "FROM z_pay_com AS o WHERE o.param=-1 AND o.no_urut<c.no_urut))"_s.arg(side)),
                  "");
    EXPECT_EQ(demoRows(rulesWhere + u"(r.use_if_sum=-1 AND r.use_kode_if NOT IN (0, 1)) OR (r.use_sum=-1 AND "
                                    "r.use_kode_sum NOT IN (0, 1)) OR c.pinjaman=-1"_s),
              "");
    EXPECT_EQ(demoRows(u"SELECT count(DISTINCT no_urut)=count(*), max(length(com_kode)), "
                       "max(length(com_name))<=30 FROM z_pay_com"_s),
              "1\t3\t1");
    EXPECT_EQ(demoRows(u"SELECT count(*) FROM (SELECT emp_id_auto FROM z_pay_grp_emp GROUP BY 1 "
                       "HAVING count(*)>1) AS twice"_s),
              "0");
}

TEST(Company, SomebodyEarnsThePremiumForFullAttendance) {
    EXPECT_EQ(demoRows(uR"(
        SELECT count(*) > 3 FROM (
          SELECT emp_id_auto, sum(n) AS days FROM (
            SELECT emp_id_auto, count(*) AS n FROM shift_result
            WHERE valid=0 AND duration>0 AND shift_date>='2026-10-01' GROUP BY 1
            UNION ALL
            SELECT emp_id_auto, count(*) FROM date_temp
            WHERE absent_id=6 AND date_temp>='2026-10-01' GROUP BY 1) AS parts GROUP BY 1) AS whole
        JOIN z_pay_grp_emp USING (emp_id_auto) WHERE grp_id=3 AND days=31)"_s),
              "1");
}

TEST(Company, LoansSchedulesAndPaymentsAgree) {
    EXPECT_EQ(demoRows(uR"(
        SELECT m.id_kredit FROM zx_kredit_m AS m JOIN (
          SELECT id_kredit, count(*) AS n, sum(debet) AS debet, sum(angs_pokok) AS pokok, sum(bunga) AS bunga,
                 min(tgl_jt) AS first, sum(saldo_akh=0) AS zero, sum(proses_bayar=-1) AS paid
          FROM zx_kredit_d GROUP BY 1) AS d USING (id_kredit)
        LEFT JOIN (SELECT id_kredit, count(*) AS n, min(status) AS low, max(status) AS high
          FROM zx_bayar_kredit GROUP BY 1) AS b USING (id_kredit)
        WHERE m.periode_bulan<>d.n OR m.tot_debet<>d.debet OR m.tot_angs_pokok<>d.pokok OR m.tot_bunga<>d.bunga
           OR m.angs_pertama<>d.first OR d.zero=0 OR m.jumlah_piutang<>d.debet OR m.tot_angs_pokok<m.tot_kredit
           OR d.paid<>ifnull(b.n, 0) OR m.status<>if(d.paid>0, -1, 0) OR m.status_lunas<>if(d.paid=d.n, -1, 0)
           OR b.low<>m.status_lunas OR b.high<>m.status_lunas)"_s),
              "");
    EXPECT_EQ(demoRows(uR"(
        SELECT b.id_bayar FROM zx_bayar_kredit AS b LEFT JOIN zx_kredit_d AS d USING (id_kredit, no_urut)
        WHERE d.proses_bayar IS NULL OR d.proses_bayar<>-1 OR b.debet<>d.debet OR b.tgl_jt<>d.tgl_jt
           OR b.angs_pokok<>d.angs_pokok OR b.bunga<>d.bunga)"_s),
              "");
}

TEST(Company, AFinishedOneIsKeptAndItsLanguageChanged) {
    const db::ConnectionSettings& settings = demoCompany().mainSettings();
    EXPECT_THROW(company::generate(settings, demo()), db::Fault);
    EXPECT_TRUE(company::exists(settings));
    company::setLanguage(settings, u"english"_s);
    EXPECT_EQ(demoCompany().rowsApp(u"SELECT param_value FROM global_setting WHERE param_id='default_lang'"_s),
              QStringList{u"english"_s});
    company::setLanguage(settings, u"indonesia"_s);

    db::ConnectionSettings missing = settings;
    missing.database += u"_none"_s;
    EXPECT_FALSE(company::exists(missing));
}

TEST(Company, OneEmployeeForOneMonthIsACompanyToo) {
    company::Options smallest = demo();
    smallest.employees = smallest.months = 1;
    EXPECT_EQ(TestDatabase(smallest).rows(u"SELECT (SELECT count(*) FROM emp), (SELECT count(*) FROM zx_kredit_m)"_s),
              QStringList{u"2\t0"_s});
}

} // namespace
