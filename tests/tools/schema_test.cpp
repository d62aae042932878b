#include "tests/support/test_database.h"
#include "tools/company/bulk_insert.h"
#include "tools/company/install.h"

#include <QCoreApplication>
#include <QDateTime>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Schema, HoldsWhatThePartsOfTheProgramRelyOn) {
    TestDatabase database;
    // A payment and a loan start as open ones, though nobody writes their status.
    database.run(
        u"INSERT INTO zx_bayar_kredit (id_bayar) VALUES (1);\nINSERT INTO zx_kredit_m (id_kredit) VALUES (1)"_s);
    EXPECT_EQ(database.rows(u"SELECT b.status, m.status, m.status_lunas FROM zx_bayar_kredit AS b, zx_kredit_m AS m"_s),
              QStringList{u"0\t0\t0"_s});
    // A run of ten thousand employees counts its detail rows beyond 32,767.
    database.run(u"INSERT INTO z_pay_process_sd (process_id, no_urut, no_urut_ref) VALUES (1, 40000, 400000)"_s);
    EXPECT_EQ(database.rows(u"SELECT no_urut, no_urut_ref FROM z_pay_process_sd"_s), QStringList{u"40000\t400000"_s});
    // Two shifts, or two statuses, may fall on one day; a rule has its place once.
    database.run(u"INSERT INTO shift_result (emp_id_auto, shift_date) VALUES (1, '2026-01-02'), (1, '2026-01-02');\n"
                 "INSERT INTO date_temp (emp_id_auto, date_temp) VALUES (1, '2026-01-02'), (1, '2026-01-02')"_s);
    EXPECT_THROW(database.run(u"INSERT INTO z_pay_grp_com (com_id, grp_id, no_urut_ref) VALUES (1, 1, 2), (1, 1, 2)"_s),
                 db::Fault);
    EXPECT_EQ(database.rows(u"SELECT count(*), sum(id_kode_report) FROM z_pay_report WHERE id_kode_report<=28 OR "
                            "id_kode_report=50"_s),
              QStringList{u"29\t456"_s});
    // A new message names one language only.
    database.runApp(u"INSERT INTO tvk_message (message_id, com_form, indonesia) VALUES ('message_id[1]', 'f', 'x')"_s);
    EXPECT_EQ(database.rowsApp(u"SELECT english FROM tvk_message"_s), QStringList{u"NULL"_s});
}

TEST(Schema, IsInstalledUnderAnyNameAndLeavesWithIt) {
    db::ConnectionSettings settings = testServer();
    settings.database = u"orvane `test`-%1"_s.arg(QCoreApplication::applicationPid());
    company::install(settings);
    EXPECT_THROW(company::install(settings), db::Fault);
    company::uninstall(settings);
    db::Connection connection;
    connection.configure(testServer());
    EXPECT_EQ(TestDatabase::rows(connection, u"SHOW DATABASES LIKE 'orvane `test`%'"_s), QStringList());
}

TEST(BulkInsert, SplitsItsStatementsAndKeepsEveryValue) {
    TestDatabase database;
    db::Connection connection;
    connection.configure(database.mainSettings());
    company::BulkInsert insert(connection, "user_log (login_id, log_date, module, log_note)");
    const QDateTime moment(QDate(2026, 2, 28), QTime(23, 59), Qt::UTC);
    const QString note = uR"(O'Neil \ "naïve" )"_s;
    insert.row(QString(), moment, company::Flag{true}, note);
    insert.row(u""_s, QDate(2026, 3, 1), 5.25, company::Hours{1205});
    for (int i = 0; i < 60000; ++i)
        insert.row(u"x"_s, nullptr, i % 30000, company::Literal{"'y'"});
    insert.finish();
    insert.finish();
    EXPECT_EQ(database.rows(u"SELECT * FROM user_log WHERE log_note<>'y'"_s),
              (QStringList{u"NULL\t2026-02-28 23:59:00\t-1\t"_s + note, u"\t2026-03-01 00:00:00\t5\t12.05"_s}));
    EXPECT_EQ(database.rows(u"SELECT count(*), sum(module) FROM user_log WHERE log_note='y'"_s),
              QStringList{u"60000\t899970000"_s});
    EXPECT_GT(connection.statementCount(), 1);
    EXPECT_LT(connection.statementCount(), 5);
}

} // namespace
