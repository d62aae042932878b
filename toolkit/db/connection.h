#pragma once

#include "toolkit/db/fault.h"
#include "toolkit/db/result.h"

#include <QString>

#include <chrono>
#include <memory>

struct st_mysql;

namespace db {

struct ConnectionSettings {
    QString host;
    quint16 port = 3306;
    QString user;
    QString password;
    QString database;
};

/// How long a connection waits. Connecting is a matter of seconds, a long report may take minutes.
struct Waits {
    std::chrono::seconds connect{5};
    std::chrono::seconds read{600};
    std::chrono::seconds write{60};
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

    void applySessionDefaults();
    void openAsNeeded(const QString& sql);
    void send(const QString& sql);
    [[nodiscard]] Result fetch(const QString& sql);
    [[nodiscard]] bool peerHasClosed() const;
    [[noreturn]] void raise(const QString& sql);

    ConnectionSettings m_settings;
    Waits m_waits;
    std::unique_ptr<st_mysql, Close> m_session;
    qint64 m_statements = 0;
    bool m_inTransaction = false;
};

} // namespace db
