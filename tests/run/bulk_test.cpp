#include "run/compute.h"
#include "run/reference/plain_lookups.h"
#include "run/totals.h"
#include "tests/run/random_company.h"
#include "tests/support/test_database.h"
#include "toolkit/text/number_text.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

/// The whole run, each number with as many digits as tell it from its neighbours.
QStringList exactly(const run::Run& made) {
    QStringList lines{
        QStringLiteral("last numbers %1 %2").arg(made.nomor_rincian_terakhir).arg(made.nomor_baris_terakhir)};
    for (const run::Line& line : made.lines) {
        lines << QStringLiteral("line %1 employee %2 %3 %4 %5 %6")
                     .arg(line.no_urut)
                     .arg(line.emp_id_auto)
                     .arg(line.pin, line.nik, line.nama, plainNumber(line.tot_payroll));
        for (const run::Row& row : line.rows)
            lines << QStringLiteral("  row %1 employee %2 component %3 %4 %5 %6 x %7 %8 [%9]")
                         .arg(row.no_urut_ref)
                         .arg(row.emp_id_auto)
                         .arg(row.com_id)
                         .arg(row.com_kode, row.com_name, plainNumber(row.subtot_payroll), plainNumber(row.jml_faktor),
                              row.jenis(), row.kondisi);
    }
    return lines << plainNumber(made.tot_process);
}

int numberFrom(const char* variable, int otherwise) {
    const int number = qEnvironmentVariableIntValue(variable);
    return number > 0 ? number : otherwise;
}

/// One pair of databases for all companies: making tables takes longer than computing a small company.
class Companies final {
public:
    Companies() {
        m_main.configure(m_database.mainSettings());
        m_app.configure(m_database.appSettings());
        m_tables = m_database.rows(QStringLiteral("show tables"));
    }

    void fill(const QString& mainRows, const QString& settingRows) {
        for (const QString& table : m_tables)
            m_main.execute(QStringLiteral("delete from ") + table);
        m_app.execute(QStringLiteral("delete from global_setting"));
        m_database.run(mainRows);
        m_database.runApp(settingRows);
    }

    /// Runs what is to be done while the table is away; no name: with all tables in place.
    template <typename Action>
    void without(const QString& table, Action&& action) {
        if (!table.isEmpty())
            m_main.execute(QStringLiteral("rename table %1 to away").arg(table));
        action();
        if (!table.isEmpty())
            m_main.execute(QStringLiteral("rename table away to %1").arg(table));
    }

    [[nodiscard]] run::Run plainly(const run::Selections& selections) {
        run::PlainLookups lookups(m_main, m_app, selections);
        run::Run made;
        (void)proses(made, selections, lookups);
        return made;
    }

    [[nodiscard]] run::Run inBulk(const run::Selections& selections) {
        run::Run made;
        (void)computeRun(made, selections, m_main, m_app);
        return made;
    }

    [[nodiscard]] qint64 statements() const { return m_main.statementCount() + m_app.statementCount(); }
    [[nodiscard]] db::Connection& main() { return m_main; }

private:
    TestDatabase m_database;
    db::Connection m_main;
    db::Connection m_app;
    QStringList m_tables;
};

} // namespace

TEST(Bulk, YieldsWhatOneStatementPerLookupYieldsToTheLastDigit) {
    Companies companies;
    const int first = numberFrom("ORVANE_RUN_SEED", 1);
    const int count = numberFrom("ORVANE_RUN_COMPANIES", 200);
    qsizetype amounts = 0;
    for (int seed = first; seed < first + count; ++seed) {
        RandomCompany company{unsigned(seed)};
        companies.fill(company.mainRows(), company.settingRows());
        const run::Selections selections = company.selections();
        const double round_value = company.round_value();
        companies.without(company.missingTable(), [&] {
            run::Run plain = companies.plainly(selections);
            run::Run bulk = companies.inBulk(selections);
            const QString expected = exactly(plain).join(u'\n');
            ASSERT_EQ(exactly(bulk).join(u'\n').toStdString(), expected.toStdString())
                << "ORVANE_RUN_SEED=" << seed << " ORVANE_RUN_COMPANIES=1";
            hitung(plain, round_value);
            hitung(bulk, round_value);
            ASSERT_EQ(exactly(bulk), exactly(plain)) << "after the totals, ORVANE_RUN_SEED=" << seed;
            for (const run::Line& line : plain.lines)
                amounts += qsizetype(line.rows.size());
        });
        if (testing::Test::HasFatalFailure())
            return;
    }
    // A generator that has gone astray would compare empty runs.
    EXPECT_GT(amounts, count) << "rows with an amount in all companies";
}

TEST(Bulk, TakesAsManyStatementsForThousandEmployeesAsForTen) {
    Companies companies;
    const auto statementsFor = [&](int employees) {
        QStringList people, members, shifts;
        for (int id = 1; id <= employees; ++id) {
            people << QStringLiteral("(%1,0)").arg(id);
            members << QStringLiteral("(%1,%2)").arg(1 + id % 2).arg(id);
            shifts << QStringLiteral("(%1,'2024-02-02',0,8)").arg(id);
        }
        companies.fill(
            QStringLiteral(
                "insert into emp (emp_id_auto, emp_status) values %1;\n"
                "insert into z_pay_grp_emp (grp_id, emp_id_auto) values %2;\n"
                "insert into shift_result (emp_id_auto, shift_date, valid, duration) values %3;\n"
                "insert into z_pay_grp (grp_id) values (1), (2);\n"
                "insert into z_pay_com (com_id, com_name, type, param) values (1, 'Satu', 0, -1), (2, 'Dua', 0, 0);\n"
                "insert into z_pay_grp_com (grp_id, com_id, no_urut_ref, use_kode_if, use_sum, use_kode_sum, "
                "id_kode_sum, hitung) values "
                "(1, 1, 1, -1, -1, 0, 4, 0), (2, 1, 1, -1, -1, 0, 4, 1), (1, 2, 2, -1, -1, 1, 1, 0), (2, 2, 2, -1, -1, "
                "0, 17, 1);\n")
                .arg(people.join(u','), members.join(u','), shifts.join(u',')),
            {});
        run::Selections selections;
        selections.period = {QDate(2024, 2, 1), QDate(2024, 2, 28)};
        selections.groups = {1, 2};
        selections.components = {{.com_id = 1, .no_urut = 1}, {.com_id = 2, .no_urut = 2}};
        selections.loans = run::LoanTest::Period;
        const qint64 before = companies.statements();
        const run::Run made = companies.inBulk(selections);
        const qint64 taken = companies.statements() - before;
        EXPECT_EQ(made.lines.size(), std::size_t(employees));
        EXPECT_EQ(made.lines.back().rows.at(0).subtot_payroll, 8);
        return taken;
    };
    const qint64 forTen = statementsFor(10);
    EXPECT_EQ(statementsFor(1000), forTen);
    EXPECT_LT(forTen, 80);
}
