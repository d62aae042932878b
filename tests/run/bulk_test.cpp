#include "run/reading/compute.h"
#include "tests/run/random_company.h"
#include "tests/run/reference/plain_lookups.h"
#include "tests/run/rule_text.h"
#include "tests/support/test_database.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The whole run, each number with as many digits as tell it from its neighbours.
std::string exactly(const run::Run& made) {
    QStringList texts;
    for (const run::Line& line : made.lines) {
        texts << u"\nemployee %1"_s.arg(line.emp_id_auto) << line.pin << line.nik << line.nama << line.fault;
        for (const run::Row& row : line.rows)
            texts << u"\n  "_s + row.com_kode << row.com_name << describe({row});
    }
    return texts.join(u' ').toStdString();
}

/// One pair of databases for all companies: making tables takes longer than computing a small company.
class Companies : public testing::Test {
protected:
    Companies() {
        m_main.configure(m_database.mainSettings());
        m_app.configure(m_database.appSettings());
    }

    void fill(const QString& mainRows, const QString& settingRows) {
        for (const QString& table : m_tables)
            m_main.execute(u"delete from "_s + table);
        m_app.execute(u"delete from global_setting"_s);
        m_database.run(mainRows);
        m_database.runApp(settingRows);
    }

    /// Compares both ways while the table is away; gives the rows with an amount.
    qsizetype compare(const run::SessionSelections& selections, const QString& missing) {
        if (!missing.isEmpty())
            m_main.execute(u"rename table %1 to away"_s.arg(missing));
        run::PlainLookups lookups(m_main, m_app, selections);
        run::Run plain;
        run::Run bulk;
        EXPECT_EQ(computeRun(bulk, selections, m_main, m_app), proses(plain, selections, lookups));
        if (!missing.isEmpty())
            m_main.execute(u"rename table away to %1"_s.arg(missing));
        EXPECT_EQ(exactly(bulk), exactly(plain));
        qsizetype rows = 0;
        for (const run::Line& line : plain.lines)
            rows += std::ranges::count_if(line.rows, [](const run::Row& row) { return row.subtot_payroll > 0; });
        return rows;
    }

    TestDatabase m_database;
    db::Connection m_main;
    db::Connection m_app;
    const QStringList m_tables = m_database.rows(u"show tables"_s);
};

} // namespace

TEST_F(Companies, YieldInBulkWhatOneStatementPerLookupYieldsToTheLastDigit) {
    const int first = qEnvironmentVariable("ORVANE_RUN_SEED", u"1"_s).toInt();
    const int count = qEnvironmentVariable("ORVANE_RUN_COMPANIES", u"200"_s).toInt();
    qsizetype amounts = 0;
    QString dateType;
    for (int seed = first; seed < first + count && !HasFailure(); ++seed) {
        SCOPED_TRACE("ORVANE_RUN_SEED=" + std::to_string(seed) + " ORVANE_RUN_COMPANIES=1");
        RandomCompany company{unsigned(seed)};
        if (company.dateType() != std::exchange(dateType, company.dateType()))
            m_database.setDateType(dateType);
        fill(company.mainRows(), company.settingRows());
        const run::SessionSelections selections = company.selections();
        amounts += compare(selections, company.missingTable());
    }
    // A few companies may well pay nobody anything; two hundred that do come from a generator gone astray.
    if (count >= 200) {
        EXPECT_GT(amounts, count) << "rows with an amount in all companies";
    }
}

TEST_F(Companies, TakeAsManyStatementsForThousandEmployeesAsForTen) {
    run::SessionSelections selections;
    selections.session_cab_id = base::Branch::all();
    selections.period = {QDate(2024, 2, 1), QDate(2024, 2, 28)};
    selections.groups = {1, 2};
    selections.components = {{.com_id = 1, .no_urut = 1}, {.com_id = 2, .no_urut = 2}};
    selections.loans = run::LoanTest::Period;
    const auto statementsFor = [&](int employees) {
        fill(u"insert into emp (emp_id_auto, emp_status) select seq, 0 from seq_1_to_%1;\n"
             "insert into z_pay_grp_emp (grp_id, emp_id_auto) select 1 + seq % 2, seq from seq_1_to_%1;\n"
             "insert into shift_result (emp_id_auto, shift_date, valid, duration) select seq, '2024-02-02', 0, 8 "
             "from seq_1_to_%1;\n"
             "insert into z_pay_grp (grp_id) values (1), (2);\n"
             "insert into z_pay_com (com_id, com_name, type, param) values (1, 'Satu', 0, -1), (2, 'Dua', 0, 0);\n"
             "insert into z_pay_grp_com (grp_id, com_id, no_urut_ref, use_kode_if, use_sum, use_kode_sum, "
             "id_kode_sum, hitung) values (1, 1, 1, -1, -1, 0, 4, 0), (2, 1, 1, -1, -1, 0, 4, 1), "
             "(1, 2, 2, -1, -1, 1, 1, 0), (2, 2, 2, -1, -1, 0, 17, 1);\n"_s.arg(employees),
             {});
        const qint64 before = m_main.statementCount() + m_app.statementCount();
        run::Run made;
        EXPECT_EQ(computeRun(made, selections, m_main, m_app), run::Notice::None);
        EXPECT_EQ(made.lines.size(), std::size_t(employees));
        EXPECT_EQ(made.lines.back().rows.at(0).subtot_payroll, 8);
        return m_main.statementCount() + m_app.statementCount() - before;
    };
    const qint64 forTen = statementsFor(10);
    EXPECT_EQ(statementsFor(1000), forTen);
    EXPECT_LT(forTen, 80);
}
