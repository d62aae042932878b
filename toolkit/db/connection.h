#pragma once

#include "toolkit/db/fault.h"
#include "toolkit/db/result.h"

#include <QString>

#include <chrono>
#include <memory>
#include <optional>

struct st_mysql;

namespace db {

class StatementWatch;
enum class Encryption;

struct ConnectionSettings {
    QString host;
    quint16 port = 3306;
    QString user;
    QString password;
    QString database;
};

/// What a second session finds another one by.
struct SessionIdentity {
    QString server;    ///< tells the server from others
    qint64 number = 0; ///< as the server itself counts; what the handshake said may be a go-between's number
};

/// How long a connection waits.
struct Waits {
    std::chrono::seconds connect{5};
    /// Silence after which a second session asks whether the server is still at work, again and again. While it is,
    /// there is no limit; where it is not, the statement ends after at most twice this time and one connect.
    std::chrono::seconds quiet{10};
};

/// One session with the server. It opens itself at the first statement and again when the server has gone away: a
/// statement that is known not to have reached the server is sent once more, one whose fate is unknown only where it
/// asks for rows. Inside a Transaction nothing is sent again. Used from one thread. Everything that fails throws Fault.
class Connection final {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Takes effect at the next open.
    void configure(ConnectionSettings settings, Waits waits = {});
    [[nodiscard]] const ConnectionSettings& settings() const { return m_settings; }

    /// Told of every statement that keeps its caller waiting; must outlive the last of them.
    void setWatch(StatementWatch* watch) { m_watch = watch; }

    /// Refuses a server on which texts in statements would not be safe.
    void open();
    void close();
    [[nodiscard]] bool isOpen() const { return m_session != nullptr; }

    /// Runs one statement that yields rows and changes nothing.
    [[nodiscard]] Result query(const QString& sql);
    /// Runs one statement that yields no rows; gives the number of rows it touched.
    qint64 execute(const QString& sql);

    /// Statements sent since the object exists, the session's own set-up not counted.
    [[nodiscard]] qint64 statementCount() const { return m_statements; }

private:
    friend class Transaction;

    struct Close {
        void operator()(st_mysql* session) const;
    };

    class Wait;
    class Onlooker;
    /// What a second session sees of this one.
    enum class Sign { AtWork, Idle, Gone, Silent, Unknown };

    void connect(Encryption encryption);
    [[nodiscard]] int write(const QByteArray& utf8);
    void openSecond(Connection& second, Onlooker& onlooker) const;
    [[nodiscard]] Sign lookFromOutside() const;
    [[nodiscard]] bool killStatement() const;
    void openAsNeeded(const QString& sql);
    void send(const QString& sql);
    [[nodiscard]] Result fetch(const QString& sql);
    [[nodiscard]] bool peerHasClosed() const;
    [[noreturn]] void raise(const QString& sql);

    ConnectionSettings m_settings;
    Waits m_waits;
    std::unique_ptr<st_mysql, Close> m_session;
    SessionIdentity m_identity;
    std::optional<Fault> m_silence; ///< of the last open, where it took the whole wait
    std::chrono::steady_clock::time_point m_silentUntil;
    StatementWatch* m_watch = nullptr;
    Wait* m_wait = nullptr;  ///< of the statement that is under way
    bool m_isSecond = false; ///< opened beside a session that waits
    qint64 m_statements = 0;
    bool m_inTransaction = false;
};

} // namespace db
