#include "tests/support/test_database.h"
#include "toolkit/db/session_setup.h"
#include "toolkit/db/statement_watch.h"
#include "toolkit/db/transaction.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

class Session : public testing::Test {
protected:
    void SetUp() override {
        m_connection.configure(m_database.mainSettings());
        m_connection.execute(u"create table hitung(n int)"_s);
    }

    qint64 sessionId() { return TestDatabase::rows(m_connection, u"select connection_id()"_s).first().toLongLong(); }
    QStringList counted() { return m_database.rows(u"select count(*) from hitung"_s); }

    TestDatabase m_database;
    db::Connection m_connection;
};

} // namespace

TEST_F(Session, IsLaxOnAServerInItsStrictestMode) {
    m_connection.execute(u"insert into cabang(cab_id_auto, cab_name) values(1, repeat('x', 150)), (2, 'Bandung')"_s);
    EXPECT_EQ(TestDatabase::rows(m_connection, u"select cab_id_auto, length(cab_name), count(*) from cabang"_s),
              QStringList{u"1\t100\t2"_s})
        << "a text longer than its column is cut, a column outside the groups read";
    EXPECT_EQ(TestDatabase::rows(m_connection, u"select @@sql_mode, @@character_set_client, @@autocommit"_s),
              QStringList{u"\tutf8mb4\t1"_s});
}

TEST_F(Session, ReadsValuesInTheTypeThatIsAskedFor) {
    db::Result row = m_connection.query(
        u"select 9007199254740993 as i, 2.5 as r, '3.6abc' as t, null as n, date('2026-10-31') as d, "
        "timestamp('2026-10-31 08:15:30') as m, 'é😀' as u, '9e18' as big, 1e300 as huge"_s);
    ASSERT_TRUE(row.next());
    EXPECT_EQ(row.integer(u"I"_s), 9007199254740993) << "neither cut to 32 bits nor read as a double";
    EXPECT_EQ(row.integer(u"r"_s), 2) << "ties go to the even neighbour";
    EXPECT_EQ(row.real(u"t"_s), 3.6);
    EXPECT_TRUE(row.isNull(3));
    EXPECT_EQ(row.text(3) + QString::number(row.integer(3)) + QString::number(row.real(3)), u"00"_s);
    EXPECT_EQ(row.date(u"d"_s), QDate(2026, 10, 31));
    EXPECT_EQ(row.moment(u"m"_s), QDateTime(QDate(2026, 10, 31), QTime(8, 15, 30)));
    EXPECT_EQ(row.moment(u"d"_s), QDateTime(QDate(2026, 10, 31), QTime(0, 0)));
    EXPECT_EQ(row.text(u"u"_s), u"é😀"_s);
    EXPECT_EQ(row.integer(u"big"_s), 9'000'000'000'000'000'000);
    EXPECT_THROW((void)row.integer(u"huge"_s), db::Fault);
    EXPECT_THROW((void)row.integer(u"nobody"_s), db::Fault);
    EXPECT_FALSE(row.next());
}

TEST_F(Session, FaultsCarryTheServersCodeStateAndTheStatement) {
    const QString sql = u"select * from nirgends"_s;
    try {
        (void)m_connection.query(sql);
        FAIL() << "no fault";
    } catch (const db::Fault& fault) {
        EXPECT_EQ(fault.code(), 1146u);
        EXPECT_EQ(fault.sqlState(), u"42S02"_s);
        EXPECT_EQ(fault.statement(), sql);
        EXPECT_NE(QString::fromUtf8(fault.what()).indexOf(u"nirgends"_s), -1);
    }
    EXPECT_TRUE(m_connection.isOpen()) << "a refused statement does not end the session";
    EXPECT_THROW((void)m_connection.query(u"set @a=1"_s), db::Fault);
}

TEST_F(Session, AStatementAfterItDiedIsSentOnANewOneOnce) {
    const qint64 before = sessionId();
    m_database.run(u"kill %1"_s.arg(before));
    m_connection.execute(u"insert into hitung values(1)"_s);
    EXPECT_NE(sessionId(), before);
    EXPECT_EQ(counted(), QStringList{u"1"_s});
}

TEST_F(Session, AStatementWhoseFateIsUnknownIsNotSentAgain) {
    const qint64 id = sessionId();
    std::thread killer([this, id] {
        db::Connection other;
        other.configure(m_database.mainSettings());
        // The insert below is carried out row by row; its first row is waiting inside sleep() by then.
        const QString sleeping =
            u"select 1 from information_schema.processlist where id=%1 and state='User sleep'"_s.arg(id);
        for (int i = 0; i < 100 && other.query(sleeping).rowCount() == 0; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        other.execute(u"kill %1"_s.arg(id));
    });
    EXPECT_THROW(m_connection.execute(u"insert into hitung select sleep(30)"_s), db::Fault);
    killer.join();
    EXPECT_EQ(counted(), QStringList{u"0"_s});
}

TEST_F(Session, AQueryWhoseAnswerIsLostIsSentOnceMoreButNotInsideATransaction) {
    m_database.run(u"create table tries(n int) engine=aria"_s);
    const auto triesOf = [this](int losses, bool inside) {
        m_database.run(
            u"truncate tries;\ndrop function if exists gone;\n"
            "create function gone() returns int begin insert into tries values(1); "
            "if (select count(*) from tries)<=%1 then kill connection_id(); end if; return 7; end;\n"_s.arg(losses));
        QString outcome;
        try {
            std::optional<db::Transaction> transaction;
            if (inside)
                transaction.emplace(m_connection);
            outcome = TestDatabase::rows(m_connection, u"select gone()"_s).join(u' ');
        } catch (const db::Fault& fault) {
            outcome = fault.isConnectionLoss() ? u"lost"_s : QString::fromUtf8(fault.what());
        }
        return outcome + u" after "_s + m_database.rows(u"select count(*) from tries"_s).first();
    };
    EXPECT_EQ(QStringList({triesOf(1, false), triesOf(2, false), triesOf(1, true)}),
              QStringList({u"7 after 2"_s, u"lost after 2"_s, u"lost after 1"_s}));
}

TEST_F(Session, ATransactionIsGivenUpWholeWithItsSession) {
    {
        db::Transaction transaction(m_connection);
        EXPECT_THROW(db::Transaction inner(m_connection), std::logic_error);
        m_connection.execute(u"insert into hitung values(1)"_s);
        m_database.run(u"kill %1"_s.arg(sessionId()));
        EXPECT_THROW(m_connection.execute(u"insert into hitung values(2)"_s), db::Fault);
        EXPECT_THROW(m_connection.execute(u"insert into hitung values(3)"_s), db::Fault) << "no new session inside";
        EXPECT_THROW(transaction.commit(), db::Fault) << "nothing was there to be committed";
    }
    m_connection.execute(u"insert into hitung values(4)"_s);
    std::optional<db::Transaction> dropped(std::in_place, m_connection);
    m_connection.execute(u"insert into hitung values(5)"_s);
    dropped.reset();
    db::inTransaction(m_connection, [this] { m_connection.execute(u"insert into hitung values(6)"_s); });
    EXPECT_EQ(m_database.rows(u"select n from hitung"_s), QStringList({u"4"_s, u"6"_s}));
}

/// Gives up at the third call, after it has tried a statement of its own.
struct Impatient final : db::StatementWatch {
    explicit Impatient(db::Connection& waits) : connection(waits) {}
    Wish waiting() override {
        EXPECT_THROW((void)connection.query(u"select 1"_s), db::Fault) << "no statement inside another";
        return ++calls < 3 ? Wish::GoOn : Wish::Cancel;
    }
    void ended() override { calls = 0; }
    QString cancelled() const override { return u"Dibatalkan"_s; }

    db::Connection& connection;
    int calls = 0;
};

TEST_F(Session, AStatementCanBeCancelledWhileItIsAwaitedAndWhileItsRowsArrive) {
    Impatient watch(m_connection);
    const qint64 id = sessionId();
    m_connection.setWatch(&watch);
    for (const QString& sql : {u"select sleep(100)"_s, u"insert into hitung select sleep(100)"_s,
                               u"select repeat('x', 9000), sleep(seq>9) from seq_1_to_100"_s}) {
        try {
            m_connection.execute(sql);
            ADD_FAILURE() << sql.toStdString();
        } catch (const db::Fault& fault) {
            EXPECT_TRUE(fault.isInterrupted()) << fault.what();
            EXPECT_STREQ(fault.what(), "Dibatalkan");
        }
        EXPECT_EQ(watch.calls, 0) << "told of the end";
        EXPECT_EQ(sessionId(), id) << "the session goes on";
    }
    EXPECT_EQ(counted(), QStringList{u"0"_s});
}

TEST(Waits, DoNotEndWhileTheServerIsAtWork) {
    db::Connection connection;
    connection.configure(testServer(), {.connect = std::chrono::seconds(1), .quiet = std::chrono::seconds(1)});
    EXPECT_EQ(connection.query(u"select sleep(3)"_s).rowCount(), 1);
}

TEST(SessionValues, AreRefusedWhereTextsWouldNotBeSafe) {
    const std::pair<db::SessionValues, const char*> cases[] = {
        {{u"utf8"_s, u"utf8mb3"_s, u"utf8mb4"_s, u"NO_ENGINE_SUBSTITUTION"_s}, ""},
        {{u"gbk"_s, u"utf8mb4"_s, u"utf8mb4"_s, {}}, "the session's character set is gbk instead of utf8mb4"},
        {{u"utf8mb4"_s, u"big5"_s, u"utf8mb4"_s, {}}, "the session's character set is big5 instead of utf8mb4"},
        {{u"utf8mb4"_s, u"utf8mb4"_s, u"utf8mb4"_s, u"STRICT_ALL_TABLES,NO_BACKSLASH_ESCAPES"_s},
         "the session's mode holds NO_BACKSLASH_ESCAPES"},
    };
    for (const auto& [values, fault] : cases)
        EXPECT_EQ(db::unsafeIn(values).toStdString(), fault);
}
