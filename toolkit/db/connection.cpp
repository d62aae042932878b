#include "toolkit/db/connection.h"

#include "toolkit/db/session_setup.h"
#include "toolkit/db/wait.h"

#include <errmsg.h>
#include <mysql.h>
#include <poll.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace db {

void Connection::Close::operator()(st_mysql* session) const {
    mysql_close(session);
}

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::configure(ConnectionSettings settings, Waits waits) {
    m_settings = std::move(settings);
    m_waits = waits;
    m_silence.reset();
}

void Connection::open() {
    close();
    const Wait wait(*this, Wait::Phase::Connecting);
    try {
        connect(Encryption::WhereOffered);
    } catch (const Fault& fault) {
        // Servers of ten years ago offer only what is too weak for today's library. Whoever stands between could also
        // strip the offer, so nothing is lost by going on as with a server that makes none.
        if (fault.code() != CR_SSL_CONNECTION_ERROR)
            throw wait.judged(fault);
        connect(Encryption::None);
    }
}

void Connection::connect(Encryption encryption) {
    std::unique_ptr<st_mysql, Close> session(mysql_init(nullptr));
    setOptions(session.get(), m_waits.connect, encryption);
    Wait::install(session.get());
    const QByteArray host = m_settings.host.toUtf8();
    const QByteArray user = m_settings.user.toUtf8();
    const QByteArray password = m_settings.password.toUtf8();
    const QByteArray database = m_settings.database.toUtf8();
    if (!mysql_real_connect(session.get(), host.constData(), user.constData(), password.constData(),
                            database.isEmpty() ? nullptr : database.constData(), m_settings.port, nullptr, 0))
        throw faultOf(session.get());
    keepAlive(session.get());
    m_identity = agreeOnSession(session.get());
    m_session = std::move(session);
}

void Connection::close() {
    m_session.reset();
}

bool Connection::peerHasClosed() const {
    // Between two statements the server has nothing to say; anything readable is its farewell or the end of the stream.
    pollfd descriptor{.fd = int(mysql_get_socket(m_session.get())), .events = POLLIN, .revents = 0};
    return poll(&descriptor, 1, 0) > 0;
}

int Connection::write(const QByteArray& utf8) {
    const Wait wait(*this, Wait::Phase::Sending);
    return mysql_send_query(m_session.get(), utf8.constData(), static_cast<unsigned long>(utf8.size()));
}

void Connection::openAsNeeded(const QString& sql) {
    if (m_inTransaction && !m_session)
        throw Fault(CR_SERVER_GONE_ERROR, u"HY000"_s, u"The session was lost inside a transaction"_s, sql);
    if (m_session && !m_inTransaction && peerHasClosed())
        close();
    if (m_session)
        return;
    // Several statements in a row, each of which its caller can do without, are to cost one wait.
    const auto start = std::chrono::steady_clock::now();
    if (m_silence && start < m_silentUntil)
        throw Fault(*m_silence);
    m_silence.reset();
    try {
        open();
    } catch (const Fault& fault) {
        const auto end = std::chrono::steady_clock::now();
        if (end - start >= m_waits.connect) {
            m_silence = fault.whileOpening();
            m_silentUntil = end + m_waits.connect;
        }
        throw fault.whileOpening();
    }
}

void Connection::send(const QString& sql) {
    const bool fresh = !m_session;
    openAsNeeded(sql);
    ++m_statements;
    const QByteArray utf8 = sql.toUtf8();
    if (write(utf8) != 0) {
        // A command that could not be written whole was not carried out, so one more try on a new session is safe.
        if (fresh || m_inTransaction)
            raise(sql);
        close();
        openAsNeeded(sql);
        if (write(utf8) != 0)
            raise(sql);
    }
    if (mysql_read_query_result(m_session.get()) != 0)
        raise(sql);
}

void Connection::raise(const QString& sql) {
    const Fault fault = faultOf(m_session.get(), sql);
    // The session is broken, or the server is about to end it; the next statement opens a new one.
    if (fault.stopsWork() && !(fault.isInterrupted() && m_wait->isKilled()))
        close();
    throw m_wait->judged(fault);
}

Result Connection::query(const QString& sql) {
    const Wait wait(*this, Wait::Phase::Answering);
    openAsNeeded(sql);
    try {
        return fetch(sql);
    } catch (const Fault& lost) {
        if (m_inTransaction || !lost.isConnectionLoss())
            throw;
        try {
            openAsNeeded(sql);
        } catch (const Fault&) {
            throw lost; // the first fault tells more
        }
    }
    return fetch(sql);
}

Result Connection::fetch(const QString& sql) {
    send(sql);
    MYSQL_RES* rows = mysql_store_result(m_session.get());
    if (rows)
        return Result(rows);
    if (mysql_errno(m_session.get()) != 0)
        raise(sql);
    throw Fault(0, {}, u"The statement yields no rows"_s, sql);
}

qint64 Connection::execute(const QString& sql) {
    const Wait wait(*this, Wait::Phase::Answering);
    send(sql);
    if (MYSQL_RES* rows = mysql_store_result(m_session.get()))
        mysql_free_result(rows);
    else if (mysql_errno(m_session.get()) != 0)
        raise(sql);
    return qint64(mysql_affected_rows(m_session.get()));
}

} // namespace db
