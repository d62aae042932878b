#include "tests/support/test_database.h"
#include "tools/company/install.h"

#include <QCoreApplication>

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

} // namespace
