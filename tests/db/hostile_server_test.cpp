// Servers that one cannot trust: set up for another character set, stopped in the middle, or after the password.
#include "tests/support/test_database.h"
#include "toolkit/text/sql_text.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60'000) && process.exitCode() == 0) << process.readAllStandardError().data();
    return process.readAllStandardOutput();
}

/// A server of the test's own with TLS, in a character set in which a backslash may be half a letter.
class ForeignServer final {
public:
    ForeignServer() {
        const QString file = m_folder.path() + u"/tls.pem"_s;
        output(u"openssl"_s, {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-subj"_s, u"/CN=test"_s,
                              u"-keyout"_s, file, u"-out"_s, file + u".crt"_s});
        tool(u"start"_s,
             {u"ssl-key="_s + file, u"ssl-cert="_s + file + u".crt"_s, u"character-set-client-handshake=OFF"_s,
              u"character-set-server=gbk"_s, u"collation-server=gbk_chinese_ci"_s, u"init-connect=set names gbk"_s});
        const QString env = QString::fromLatin1(tool(u"env"_s, {}));
        const auto value = [&](const QString& name) {
            return env.section(u"ORVANE_DB_"_s + name + u'=', 1).section(u'\n', 0, 0);
        };
        settings = {value(u"HOST"_s), value(u"PORT"_s).toUShort(), value(u"USER"_s), value(u"PASSWORD"_s), {}};
        process = tool(u"status"_s, {}).split(' ').value(2).chopped(1).toInt();
    }
    ~ForeignServer() {
        kill(process, SIGCONT);
        tool(u"stop"_s, {});
    }

    void halt() {
        kill(process, SIGSTOP);
        QFile state(u"/proc/%1/stat"_s.arg(process));
        // The signal takes its time on its way to the last of the threads.
        while (state.open(QIODevice::ReadOnly) && !state.readAll().contains(") T"))
            state.close();
    }

    db::ConnectionSettings settings;
    pid_t process = 0;

private:
    QByteArray tool(const QString& action, const QStringList& options) {
        QStringList arguments{action, u"--dir"_s, m_folder.path()};
        for (const QString& option : options)
            arguments << u"--server-option="_s + option;
        return output(QStringLiteral(SERVER_TOOL), arguments);
    }

    QTemporaryDir m_folder;
};

constexpr char password[] = "kata-sandi-rahasia";

/// Greets everybody, asks whoever answers to prove the password in another way, and keeps what it hears.
class PasswordThief final {
public:
    struct Ways {
        const char* greeting;
        const char* asked;
        bool offersTls; ///< and breaks off where it is taken
        int proof;      ///< bytes that prove the password, 0 where the client refuses
    };

    explicit PasswordThief(const Ways& ways) : m_ways(ways) {
        ::listen(m_listener, 4);
        m_thread = std::thread([this] {
            for (int socket; (socket = ::accept(m_listener, nullptr, nullptr)) >= 0; ::close(socket))
                talk(socket);
        });
    }
    ~PasswordThief() {
        finish();
        ::close(m_listener);
    }

    /// Before one looks at what was heard.
    void finish() {
        ::shutdown(m_listener, SHUT_RDWR);
        if (m_thread.joinable())
            m_thread.join();
    }

    [[nodiscard]] quint16 port() const {
        sockaddr_in address{};
        socklen_t size = sizeof address;
        ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size);
        return ntohs(address.sin_port);
    }

    QByteArray heard;
    qsizetype proof = 0;

private:
    void talk(int socket) {
        static const QByteArray end(1, '\0');
        const char* capabilities = m_ways.offersTls ? "098a" : "0982";
        const QByteArray scramble(20, 's');
        say(socket, 0,
            "\x0a"
            "8.0" +
                end + QByteArray(4, '\1') + scramble.left(8) + end + QByteArray::fromHex(capabilities) +
                QByteArray::fromHex("2d0200080015") + QByteArray(10, '\0') + scramble.mid(8) + end + m_ways.greeting +
                end);
        constexpr int requestForTls = 32;
        const QByteArray answer = hear(socket);
        if (answer.isEmpty() || answer[0] == requestForTls)
            return;
        const bool isLong = qstrcmp(m_ways.asked, "client_ed25519") == 0;
        say(socket, 2, "\xfe" + QByteArray(m_ways.asked) + end + (isLong ? QByteArray(32, 's') : scramble + end));
        proof = qMax<qsizetype>(0, hear(socket).size() - 4);
        // To one of the ways this says that the proof does not do and the password itself is wanted.
        say(socket, 4, QByteArray::fromHex("0104"));
        hear(socket);
    }
    static void say(int socket, char number, const QByteArray& body) {
        const QByteArray packet = QByteArray(1, char(body.size())) + QByteArray(2, '\0') + number + body;
        ::send(socket, packet.data(), std::size_t(packet.size()), MSG_NOSIGNAL);
    }
    QByteArray hear(int socket) {
        char bytes[4096];
        const QByteArray said(bytes, qMax<qsizetype>(0, ::recv(socket, bytes, sizeof bytes, 0)));
        heard += said;
        return said;
    }

    const Ways m_ways;
    const int m_listener = ::socket(AF_INET, SOCK_STREAM, 0);
    std::thread m_thread;
};

} // namespace

TEST(AServerAfterThePassword, GetsProofsOfItOnly) {
    const PasswordThief::Ways cases[] = {
        {"mysql_native_password", "mysql_clear_password", false, 0},
        {"mysql_clear_password", "mysql_clear_password", false, 0},
        {"mysql_native_password", "dialog", false, 0},
        {"mysql_native_password", "sha256_password", false, 0},
        {"caching_sha2_password", "mysql_native_password", false, 20},
        {"mysql_native_password", "caching_sha2_password", false, 0},
        {"mysql_native_password", "caching_sha2_password", true, 0},
        {"mysql_native_password", "client_ed25519", false, 64},
        {"mysql_native_password", "client_ed25519", true, 64},
    };
    for (const PasswordThief::Ways& ways : cases) {
        PasswordThief thief(ways);
        db::Connection connection;
        connection.configure({u"127.0.0.1"_s, thief.port(), u"penggaji"_s, QString::fromLatin1(password), {}});
        EXPECT_THROW(connection.open(), db::Fault);
        thief.finish();
        EXPECT_FALSE(thief.heard.contains(password)) << ways.greeting << ' ' << ways.asked;
        EXPECT_EQ(thief.proof, ways.proof) << ways.greeting << ' ' << ways.asked;
    }
}

TEST(AServerThatSaysNothing, IsWaitedForOnceByStatementsInARowAndAskedAgainLater) {
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
    ::listen(listener, 8);
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    db::Connection connection;
    connection.configure({u"127.0.0.1"_s, ntohs(address.sin_port), u"penggaji"_s, {}, {}},
                         {.connect = std::chrono::seconds(2), .quiet = std::chrono::seconds(2)});
    const auto calls = [&](int statements) {
        for (int i = 0; i < statements; ++i)
            EXPECT_THROW((void)connection.query(u"select 1"_s), db::Fault);
        int count = 0;
        for (int socket; (socket = ::accept(listener, nullptr, nullptr)) >= 0; ::close(socket))
            ++count;
        return count;
    };
    EXPECT_EQ(calls(3), 1);
    std::this_thread::sleep_for(std::chrono::seconds(3));
    EXPECT_EQ(calls(1), 1);
    ::close(listener);
}

TEST(AForeignServer, StoresTextsAsTheyAreIsSpokenToInSecretAndNoticedWhenItStops) {
    ForeignServer server;
    db::Connection owner;
    owner.configure(server.settings);
    owner.execute(u"create database gaji character set utf8mb4"_s);
    owner.execute(u"create table gaji.run(name varchar(100))"_s);
    // What the server runs for each new session it runs for ordinary users only.
    owner.execute(u"grant all on gaji.* to biasa identified by 'biasa'"_s);
    server.settings.user = server.settings.password = u"biasa"_s;
    db::Connection connection;
    connection.configure(server.settings, {.connect = std::chrono::seconds(1), .quiet = std::chrono::seconds(1)});
    EXPECT_FALSE(TestDatabase::rows(connection, u"show session status like 'Ssl_cipher'"_s).first().endsWith(u'\t'));

    // Read as gbk, half of the letter takes the first backslash along, and the second one frees the quote.
    const QString name = u"Gaji 中\\'), (database()) -- ü"_s;
    connection.execute(u"insert into gaji.run values("_s + EscapeSqlText(name) + u')');
    EXPECT_EQ(TestDatabase::rows(connection, u"select name from gaji.run"_s), QStringList{name});
    const QString large(3'000'000, u'x');
    EXPECT_EQ(TestDatabase::rows(connection, u"select length('%1')"_s.arg(large)), QStringList{u"3000000"_s});

    server.halt();
    try {
        (void)connection.query(u"select 1"_s);
        ADD_FAILURE() << "a stopped server answers";
    } catch (const db::Fault& fault) {
        EXPECT_STREQ(fault.what(), "The server has stopped answering");
    }
    kill(server.process, SIGCONT);
    // For as long as one connect may take, its silence is taken for granted.
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_EQ(connection.query(u"select 1"_s).rowCount(), 1);
}
