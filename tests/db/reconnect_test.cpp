#include "tests/support/test_database.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

class Reconnect : public testing::Test {
protected:
    void SetUp() override {
        m_connection.configure(m_database.mainSettings());
        m_connection.execute(u"create table hitung(n int)"_qs);
    }

    qint64 sessionId() { return TestDatabase::rows(m_connection, u"select connection_id()"_qs).first().toLongLong(); }
    QStringList counted() { return m_database.rows(u"select count(*) from hitung"_qs); }

    TestDatabase m_database;
    db::Connection m_connection;
};

} // namespace

TEST_F(Reconnect, AStatementAfterTheSessionDiedIsSentOnANewOneOnce) {
    const qint64 before = sessionId();
    m_database.run(u"kill %1"_qs.arg(before));
    m_connection.execute(u"insert into hitung values(1)"_qs);
    EXPECT_NE(sessionId(), before);
    EXPECT_EQ(counted(), QStringList{u"1"_qs});
}

TEST_F(Reconnect, AStatementWhoseFateIsUnknownIsNotSentAgain) {
    const qint64 id = sessionId();
    std::thread killer([this, id] {
        db::Connection other;
        other.configure(m_database.mainSettings());
        // The insert below is carried out row by row; its first row is waiting inside sleep() by then.
        const QString sleeping =
            u"select 1 from information_schema.processlist where id=%1 and state='User sleep'"_qs.arg(id);
        for (int i = 0; i < 100 && other.query(sleeping).rowCount() == 0; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        other.execute(u"kill %1"_qs.arg(id));
    });
    EXPECT_THROW(m_connection.execute(u"insert into hitung select sleep(30)"_qs), db::Fault);
    killer.join();
    EXPECT_EQ(counted(), QStringList{u"0"_qs});
}
