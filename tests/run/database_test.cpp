#include "run/reading/compute.h"
#include "tests/run/rule_text.h"
#include "tests/support/test_database.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Employees of three groups; the third has lost its row, so its members have no rules.
constexpr auto company = R"(
insert into emp (emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, emp_status) values
  (1, 'A 7', 'N1', 'Ayu', 'Sari', 1, 0), (2, '10', null, 'Budi', null, 2, 0), (3, 'B 7', 'N3', null, 'Citra', 1, 0),
  (4, '9', 'N4', 'Dewi', '', 1, 1), (5, '8 x', 'N5', 'Eko', 'Putra', 1, 0);
insert into z_pay_grp (grp_id) values (1), (2);
insert into z_pay_grp_emp (grp_id, emp_id_auto) values (1, 3), (1, 2), (1, 1), (1, 4), (2, 5), (2, 1), (3, 2);
insert into z_pay_com (com_id, com_kode, com_name, type, no_urut, param) values
  (1, 'GP', 'Gaji Pokok', 0, 5, -1), (2, 'TJ', 'Tunjangan', 0, 10, 0), (3, 'PT', 'Potongan', 1, 7, 0),
  (8, 'PK', 'Pinjaman', 1, 20, 0), (9, 'PL', 'Pinjaman Lain', 1, 25, 0);
insert into z_pay_grp_com (grp_id, com_id, no_urut_ref, use_if_sum, use_kode_if, use_sum, use_kode_sum, id_kode_sum,
  operator_sum, konstanta_sum, operator_sum2, nilai_rp, hitung, jenis)
values
  (1, 1, 9, 0, -1, 0, -1, 0, '', 0, '', 30, 0, 0), (1, 1, 4, 0, -1, 0, -1, 0, '', 0, '', 1000, 0, 0),
  (1, 3, 5, 0, -1, -1, 1, 1, '*', 0.5, '', 0, 0, 0), (1, 2, 6, null, null, null, null, null, null, null, null, 7, null, null),
  (2, 1, 1, 0, -1, -1, 0, 4, 'T', 0, '*', 10, 1, 0), (3, 1, 1, 0, -1, 0, -1, 0, '', 0, '', 99, 0, 0);
insert into z_pay_money (grp_id, com_id, emp_id_auto, nilai_rp) values
  (1, 1, 3, 2000), (2, 1, 3, 5000), (1, 1, 2, null), (1, 1, 1, 0);
insert into shift_result (emp_id_auto, shift_date, valid, duration) values
  (5, '2024-01-01', 0, 8), (5, '2024-01-02', 0, 7.5), (5, '2024-01-04', 0, 8);
insert into zx_jns_krd (krd_id, com_id) values (1, 8), (2, 9), (3, 0), (4, null);
insert into zx_kredit_m (id_kredit, krd_id, emp_id_auto) values (11, 2, 5), (12, 1, 5), (13, 3, 5), (14, 4, 5), (15, 1, 5);
insert into zx_bayar_kredit (id_bayar, tgl_bayar, id_kredit, debet, emp_id_auto) values
  (1, '2023-12-31', 12, 9000, 5), (2, '2024-01-01', 12, 100, 5), (3, '2024-01-03', 12, 20, 5),
  (4, '2024-01-04', 12, 3, 5), (5, '2024-01-02', 11, 7, 5), (6, '2024-01-02', 13, 40, 5), (7, '2024-01-02', 14, 50, 5),
  (8, '2024-01-02', 99, 60, 5), (9, '2024-01-31', 15, 1000, 5), (10, '2023-01-02', 12, 5, 5), (11, '2024-01-02', 12, 6, 1);
)";

class Database : public testing::Test {
protected:
    Database() {
        m_database.run(QString::fromUtf8(company));
        m_main.configure(m_database.mainSettings());
        m_app.configure(m_database.appSettings());
        m_selections.session_cab_id = base::Branch::all();
        m_selections.period = {QDate(2024, 1, 1), QDate(2024, 1, 3)};
    }

    /// A line for each line: PIN, NIK and name, then its rows.
    std::string lines() {
        run::Run made;
        EXPECT_EQ(computeRun(made, m_selections, m_main, m_app), run::Notice::None);
        QStringList lines;
        for (const run::Line& line : made.lines)
            lines << QStringList{line.pin, line.nik, line.nama, u"|"_s, describe(line.rows)}.join(u' ').trimmed();
        return lines.join(u'\n').toStdString();
    }

    void choose(const std::vector<int>& groups, const std::vector<int>& components) {
        m_selections.groups = groups;
        for (const int com_id : components)
            m_selections.components.push_back({.com_id = com_id, .no_urut = com_id});
    }

    TestDatabase m_database;
    db::Connection m_main;
    db::Connection m_app;
    run::SessionSelections m_selections;
};

} // namespace

TEST_F(Database, MembersComeByTheLastWordOfTheirPinAsTextWithoutTheResigned) {
    choose({1}, {});
    EXPECT_EQ(lines(), "10  Budi  |\nA 7 N1 Ayu Sari |\nB 7 N3  Citra |");
    m_selections.session_cab_id = base::Branch::one(1);
    EXPECT_EQ(lines(), "A 7 N1 Ayu Sari |\nB 7 N3  Citra |");
    m_selections.session_cab_id = base::Branch();
    EXPECT_EQ(lines(), "");
}

TEST_F(Database, RulesComeInTheirOrderForMembersOfAnExistingGroup) {
    choose({1, 3}, {1, 2, 3});
    EXPECT_EQ(lines(), "10  Budi  | 1: 1030 x 2 (+) [* 1.000]; 2: 7 x 1 (+) [* 7]; 3: 500 x 1000 (-) [0.5]\n"
                       "A 7 N1 Ayu Sari | 1: 1030 x 2 (+) [* 1.000]; 2: 7 x 1 (+) [* 7]; 3: 500 x 1000 (-) [0.5]\n"
                       "B 7 N3  Citra | 1: 4000 x 2 (+) [* 2.000]; 2: 7 x 1 (+) [* 7]; 3: 1000 x 2000 (-) [0.5]\n"
                       "10  Budi  |");
}

TEST_F(Database, ATickedEmployeeHasRulesOnlyInAGroupThatStillHoldsHim) {
    choose({1}, {1});
    // The list was filled when group 2 was chosen.
    m_selections.employees =
        run::EmployeeChoice{{{5, true}, {3, true}, {1, false}},
                            {{{5, u"8 x"_s, u"N5"_s, u"Eko"_s}, 2}, {{3, u"B 7"_s, u"N3"_s, u"Citra"_s}, 2}}};
    EXPECT_EQ(lines(), "8 x N5 Eko | 1: 155 x 15.5 (+) [* 10]\nB 7 N3 Citra |");
}

TEST_F(Database, LoansOfThePeriodHaveBothItsEndsAndThoseOfAMonthNoPeriod) {
    choose({2}, {});
    m_selections.loans = run::LoanTest::Period;
    EXPECT_EQ(lines(), "A 7 N1 Ayu Sari | 8: 6 x 1 (-) [ x Angsuran]\n"
                       "8 x N5 Eko Putra | 9: 7 x 1 (-) [ x Angsuran]; 8: 120 x 1 (-) [ x Angsuran]");
    m_selections.loans = run::LoanTest::Month;
    m_selections.loanMonth = QDate(2024, 1, 15);
    EXPECT_EQ(lines(), "A 7 N1 Ayu Sari | 8: 6 x 1 (-) [ x Angsuran]\n"
                       "8 x N5 Eko Putra | 9: 7 x 1 (-) [ x Angsuran]; 8: 1123 x 2 (-) [ x Angsuran]");
    m_selections.loanMonth = QDate(2023, 12, 1);
    EXPECT_EQ(lines(), "A 7 N1 Ayu Sari |\n8 x N5 Eko Putra | 8: 9000 x 1 (-) [ x Angsuran]");
    m_selections.loans = run::LoanTest::None;
    EXPECT_EQ(lines(), "A 7 N1 Ayu Sari |\n8 x N5 Eko Putra |");
}

TEST_F(Database, ProgressGoesThroughReadingToTheLastLine) {
    choose({1, 2}, {1});
    run::Run made;
    std::string told;
    ASSERT_EQ(computeRun(made, m_selections, m_main, m_app,
                         [&](const run::Progress& at) {
                             const char stage = at.stage == run::Progress::Stage::Reading ? 'r' : 'l';
                             told += stage + std::to_string(at.done) + "/" + std::to_string(at.of) + ' ';
                         }),
              run::Notice::None);
    EXPECT_EQ(told.substr(0, 5), "r1/0 ");
    EXPECT_EQ(told.substr(told.size() - 26), " l1/5 l2/5 l3/5 l4/5 l5/5 ");
}
