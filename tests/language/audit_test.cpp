#include "base/services.h"
#include "tests/support/test_database.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(WriteUserLog, StoresHostileTextsAsTheyAreAndCutsLongNotes) {
    TestDatabase database;
    base::Session session(base::systemClock());
    session.ADOConn.configure(database.mainSettings());
    base::AuditLog audit(session);
    const QDateTime moment(QDate(2026, 11, 22), QTime(8, 15, 59));
    audit.WriteUserLog(u"o'neil\\"_s, u"Isian - Insert - [A'B\\ : \"x\"]"_s, base::payrollModule, moment);
    audit.WriteUserLog(u"budi"_s, QString(400, u'n'), 7, moment);
    EXPECT_EQ(database.rows(u"select login_id, log_date, module, log_note from user_log order by login_id desc"_s),
              (QStringList{u"o'neil\\\t2026-11-22 08:15:00\t7\tIsian - Insert - [A'B\\ : \"x\"]"_s,
                           u"budi\t2026-11-22 08:15:00\t7\t"_s + QString(300, u'n')}));
    session.ADOConn.execute(u"drop table user_log"_s);
    EXPECT_THROW(audit.WriteUserLog(u"budi"_s, u"x"_s, 7, moment), db::Fault);
}
