#include "tests/support/test_database.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <sys/socket.h>

#include <arpa/inet.h>
#include <unistd.h>

namespace {

class Session : public testing::Test {
protected:
    void SetUp() override { m_connection.configure(m_database.mainSettings()); }

    TestDatabase m_database;
    db::Connection m_connection;
};

/// A port of this machine that takes connections and never says a word.
class SilentServer final {
public:
    SilentServer() : m_socket(::socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(::bind(m_socket, generic, size), 0);
        EXPECT_EQ(::listen(m_socket, 1), 0);
        ::getsockname(m_socket, generic, &size);
        m_port = ntohs(address.sin_port);
    }
    ~SilentServer() { ::close(m_socket); }

    [[nodiscard]] quint16 port() const { return m_port; }

private:
    int m_socket;
    quint16 m_port = 0;
};

} // namespace

TEST_F(Session, IsLaxOnAServerInItsStrictestMode) {
    m_connection.execute(u"insert into cabang(cab_id_auto, cab_name) values(1, repeat('x', 150)), (2, 'Bandung')"_qs);
    db::Result mixed = m_connection.query(u"select cab_id_auto, length(cab_name), count(*) as jml from cabang"_qs);
    mixed.next();
    EXPECT_EQ(mixed.integer(1), 100) << "a text longer than its column is cut, not refused";
    EXPECT_EQ(mixed.integer(u"jml"_qs), 2);

    db::Result mode = m_connection.query(u"select @@sql_mode, @@character_set_client, @@autocommit"_qs);
    mode.next();
    EXPECT_EQ(mode.text(0), QString());
    EXPECT_EQ(mode.text(1), u"utf8mb4"_qs);
    EXPECT_EQ(mode.integer(2), 1);
}

TEST_F(Session, ReadsValuesInTheTypeThatIsAskedFor) {
    db::Result row =
        m_connection.query(u"select 7 as i, 2.5 as r, '3.6abc' as t, null as n, date('2026-10-31') as d, "
                           "timestamp('2026-10-31 08:15:30') as m, 'é😀' as u, '9e18' as big, 1e300 as huge"_qs);
    ASSERT_TRUE(row.next());
    EXPECT_EQ(row.integer(u"I"_qs), 7);
    EXPECT_EQ(row.integer(u"r"_qs), 2) << "ties go to the even neighbour";
    EXPECT_EQ(row.real(u"t"_qs), 3.6);
    EXPECT_TRUE(row.isNull(3));
    EXPECT_EQ(row.text(3) + QString::number(row.integer(3)) + QString::number(row.real(3)), u"00"_qs);
    EXPECT_EQ(row.date(u"d"_qs), QDate(2026, 10, 31));
    EXPECT_EQ(row.moment(u"m"_qs), QDateTime(QDate(2026, 10, 31), QTime(8, 15, 30)));
    EXPECT_EQ(row.moment(u"d"_qs), QDateTime(QDate(2026, 10, 31), QTime(0, 0)));
    EXPECT_EQ(row.text(u"u"_qs), u"é😀"_qs);
    EXPECT_EQ(row.integer(u"big"_qs), 9'000'000'000'000'000'000);
    EXPECT_THROW((void)row.integer(u"huge"_qs), db::Fault);
    EXPECT_THROW((void)row.integer(u"nobody"_qs), db::Fault);
    EXPECT_FALSE(row.next());
}

TEST_F(Session, FaultsCarryTheServersCodeStateAndTheStatement) {
    const QString sql = u"select * from nirgends"_qs;
    try {
        (void)m_connection.query(sql);
        FAIL() << "no fault";
    } catch (const db::Fault& fault) {
        EXPECT_EQ(fault.code(), 1146u);
        EXPECT_EQ(fault.sqlState(), u"42S02"_qs);
        EXPECT_EQ(fault.statement(), sql);
        EXPECT_NE(QString::fromUtf8(fault.what()).indexOf(u"nirgends"_qs), -1);
    }
    EXPECT_TRUE(m_connection.isOpen()) << "a refused statement does not end the session";
    EXPECT_THROW((void)m_connection.query(u"set @a=1"_qs), db::Fault);
}

TEST(Waits, EndAConnectAndAReadThatNobodyAnswers) {
    const SilentServer silent;
    db::ConnectionSettings settings = testServer();
    settings.port = silent.port();
    db::Connection connection;
    connection.configure(settings, {.connect = std::chrono::seconds(1), .read = std::chrono::seconds(1)});
    QElapsedTimer clock;
    clock.start();
    EXPECT_THROW(connection.open(), db::Fault);
    EXPECT_LT(clock.elapsed(), 4000);

    connection.configure(testServer(), {.read = std::chrono::seconds(1)});
    clock.restart();
    EXPECT_THROW((void)connection.query(u"select sleep(20)"_qs), db::Fault);
    EXPECT_LT(clock.elapsed(), 4000);
    EXPECT_EQ(connection.query(u"select 1"_qs).rowCount(), 1) << "the next statement opens a new session";
}
