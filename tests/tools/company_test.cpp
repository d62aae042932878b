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

TEST(Company, HasAllThatItsSizeAsksFor) {
    expectAnswers({
        {uR"(SELECT sum(emp_id_auto<>-1), sum(emp_id_auto=-1), sum(emp_status=1), count(DISTINCT cab_id_auto),
               count(DISTINCT func_id_auto), count(DISTINCT pin), sum(pin REGEXP '^0'), sum(pin REGEXP '^[A-Z]'),
               sum(pin LIKE '% %')>0, sum(emp_id_auto<>-1 AND nik IS NULL)>0 FROM emp)"_s,
         "60\t1\t3\t3\t11\t61\t5\t14\t1\t1"},
        {uR"(SELECT max(length(dept_name)-length(replace(dept_name, '\\', ''))) FROM dept)"_s, "2"},
        {u"SELECT DISTINCT absent_id FROM date_temp WHERE absent_id<=6 ORDER BY 1"_s, "1\n2\n3\n4\n5\n6"},
        {u"SELECT status, status_lunas, count(*)>0 FROM zx_kredit_m GROUP BY 1, 2"_s, "-1\t-1\t1\n-1\t0\t1\n0\t0\t1"},
        {u"SELECT count(*)>0 FROM zx_bayar_kredit WHERE tgl_bayar>='2026-10-01'"_s, "1"},
        {u"SELECT DISTINCT module FROM user_log ORDER BY 1"_s, "1\n2\n3\n4\n5\n6"},
    });
    EXPECT_EQ(demoCompany().rowsApp(u"SELECT group_id_auto=1, count(*)>1 FROM user_login GROUP BY 1"_s),
              QStringList({u"0\t1"_s, u"1\t1"_s}));
}

TEST(Company, AttendanceFillsEachEmploymentAndFollowsTheCalendar) {
    expectAnswers({
        {uR"(SELECT DISTINCT greatest(begin_date, '2026-08-01')=min(d), ifnull(resign_date, '2026-10-31')=max(d),
               count(DISTINCT d)=datediff(max(d), min(d))+1
             FROM (SELECT emp_id_auto, shift_date AS d FROM shift_result
                   UNION ALL SELECT emp_id_auto, date_temp FROM date_temp) AS days
             JOIN emp USING (emp_id_auto) GROUP BY emp_id_auto)"_s,
         "1\t1\t1"},
        // Weekdays of rest and of work on days of rest, by group; managers do not work then.
        {uR"(SELECT grp_id, group_concat(DISTINCT weekday(date_temp) ORDER BY 1) FROM date_temp
             JOIN z_pay_grp_emp USING (emp_id_auto)
             WHERE absent_id=6 AND date_temp NOT IN (SELECT holiday_date FROM holiday) GROUP BY 1)"_s,
         "1\t5,6\n2\t5,6\n3\t6\n4\t6\n5\t6"},
        {uR"(SELECT grp_id, group_concat(DISTINCT weekday(shift_date) ORDER BY 1) FROM shift_result
             JOIN z_pay_grp_emp USING (emp_id_auto)
             WHERE holiday=-1 AND shift_date NOT IN (SELECT holiday_date FROM holiday) GROUP BY 1)"_s,
         "2\t5,6\n3\t6\n4\t6\n5\t6"},
        {uR"(SELECT DISTINCT holiday FROM shift_result WHERE shift_date IN (SELECT holiday_date FROM holiday)
             UNION ALL
             SELECT DISTINCT absent_id FROM date_temp WHERE date_temp IN (SELECT holiday_date FROM holiday))"_s,
         "-1\n6"},
        {u"SELECT DISTINCT holiday, absent_id=6 FROM date_temp ORDER BY 1"_s, "-1\t1\n0\t0"},
        // Only guards are called on a day of rest.
        {uR"(SELECT DISTINCT grp_id, absent_id FROM free_ot_result_m AS f JOIN z_pay_grp_emp USING (emp_id_auto)
             LEFT JOIN date_temp AS d ON d.emp_id_auto=f.emp_id_auto AND d.date_temp=f.free_date)"_s,
         "4\t6"},
        // Lateness, leaving early and overtime explain all that a shift differs from its seven or eight hours.
        {u"SELECT DISTINCT holiday, round(duration+late+early-total_ot, 2) FROM shift_result ORDER BY 1, 2"_s,
         "-1\t0.00\n0\t7.00\n0\t8.00"},
        // Somebody earns the premium for full attendance.
        {uR"(SELECT count(*)>3 FROM (
               SELECT emp_id_auto FROM (
                 SELECT emp_id_auto FROM shift_result WHERE valid=0 AND duration>0 AND shift_date>='2026-10-01'
                 UNION ALL SELECT emp_id_auto FROM date_temp WHERE absent_id=6 AND date_temp>='2026-10-01') AS days
               GROUP BY 1 HAVING count(*)=31) AS whole
             JOIN z_pay_grp_emp USING (emp_id_auto) WHERE grp_id=3)"_s,
         "1"},
    });
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

TEST(Company, LoansSchedulesAndPaymentsAgree) {
    expectAnswers({
        {uR"(SELECT m.id_kredit FROM zx_kredit_m AS m JOIN (
               SELECT id_kredit, count(*) AS n, sum(debet) AS debet, sum(angs_pokok) AS pokok, sum(bunga) AS bunga,
                 min(tgl_jt) AS first, sum(saldo_akh=0) AS zero, sum(proses_bayar=-1) AS paid
               FROM zx_kredit_d GROUP BY 1) AS d USING (id_kredit)
             LEFT JOIN (SELECT id_kredit, count(*) AS n, min(status) AS low, max(status) AS high
               FROM zx_bayar_kredit GROUP BY 1) AS b USING (id_kredit)
             WHERE m.periode_bulan<>d.n OR m.tot_debet<>d.debet OR m.tot_angs_pokok<>d.pokok OR m.tot_bunga<>d.bunga
               OR m.angs_pertama<>d.first OR d.zero=0 OR m.jumlah_piutang<>d.debet OR m.tot_angs_pokok<m.tot_kredit
               OR d.paid<>ifnull(b.n, 0) OR m.status<>if(d.paid>0, -1, 0) OR m.status_lunas<>if(d.paid=d.n, -1, 0)
               OR b.low<>m.status_lunas OR b.high<>m.status_lunas)"_s,
         ""},
        {uR"(SELECT b.id_bayar FROM zx_bayar_kredit AS b LEFT JOIN zx_kredit_d AS d USING (id_kredit, no_urut)
             WHERE ifnull(d.proses_bayar, 0)<>-1 OR
               (b.debet, b.tgl_jt, b.angs_pokok, b.bunga)<>(d.debet, d.tgl_jt, d.angs_pokok, d.bunga))"_s,
         ""},
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

TEST(Company, OneEmployeeForOneMonthIsACompanyToo) {
    company::Options smallest = demo();
    smallest.employees = smallest.months = 1;
    EXPECT_EQ(TestDatabase(smallest).rows(u"SELECT (SELECT count(*) FROM emp), (SELECT count(*) FROM zx_kredit_m)"_s),
              QStringList{u"2\t0"_s});
}

} // namespace
