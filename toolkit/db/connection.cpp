#include "toolkit/db/connection.h"

#include <errmsg.h>
#include <mysql.h>
#include <poll.h>

#include <utility>

namespace db {

namespace {

unsigned secondsOf(std::chrono::seconds wait) {
    return unsigned(wait.count());
}

void setWaits(MYSQL* session, const Waits& waits) {
    const unsigned connect = secondsOf(waits.connect);
    const unsigned read = secondsOf(waits.read);
    const unsigned write = secondsOf(waits.write);
    mysql_options(session, MYSQL_OPT_CONNECT_TIMEOUT, &connect);
    mysql_options(session, MYSQL_OPT_READ_TIMEOUT, &read);
    mysql_options(session, MYSQL_OPT_WRITE_TIMEOUT, &write);
}

Fault faultOf(MYSQL* session, const QString& sql) {
    return Fault(mysql_errno(session), QString::fromLatin1(mysql_sqlstate(session)),
                 QString::fromUtf8(mysql_error(session)), sql);
}

} // namespace

void Connection::Close::operator()(st_mysql* session) const {
    mysql_close(session);
}

Connection::Connection() = default;
Connection::~Connection() = default;

void Connection::configure(ConnectionSettings settings, Waits waits) {
    m_settings = std::move(settings);
    m_waits = waits;
}

void Connection::open() {
    close();
    std::unique_ptr<st_mysql, Close> session(mysql_init(nullptr));
    setWaits(session.get(), m_waits);
    // The name "localhost" would make the client library look for a socket file; the settings always name a port.
    const unsigned protocol = MYSQL_PROTOCOL_TCP;
    mysql_options(session.get(), MYSQL_OPT_PROTOCOL, &protocol);
    mysql_options(session.get(), MYSQL_SET_CHARSET_NAME, "utf8mb4");
    const QByteArray host = m_settings.host.toUtf8();
    const QByteArray user = m_settings.user.toUtf8();
    const QByteArray password = m_settings.password.toUtf8();
    const QByteArray database = m_settings.database.toUtf8();
    if (!mysql_real_connect(session.get(), host.constData(), user.constData(), password.constData(),
                            database.isEmpty() ? nullptr : database.constData(), m_settings.port, nullptr, 0))
        throw faultOf(session.get(), {});
    m_session = std::move(session);
    applySessionDefaults();
}

void Connection::close() {
    m_session.reset();
}

void Connection::applySessionDefaults() {
    // The tables' users rely on lax servers: too long texts are cut, and statements mix count(*) with columns.
    static constexpr char setUp[] = "SET SESSION sql_mode='', autocommit=1";
    if (mysql_real_query(m_session.get(), setUp, sizeof setUp - 1) != 0) {
        const Fault fault = faultOf(m_session.get(), QString::fromLatin1(setUp));
        close();
        throw fault;
    }
}

bool Connection::peerHasClosed() const {
    // Between two statements the server has nothing to say; anything readable is its farewell or the end of the stream.
    pollfd descriptor{.fd = int(mysql_get_socket(m_session.get())), .events = POLLIN, .revents = 0};
    return poll(&descriptor, 1, 0) > 0;
}

void Connection::openAsNeeded(const QString& sql) {
    if (m_inTransaction && !m_session)
        throw Fault(CR_SERVER_GONE_ERROR, QStringLiteral("HY000"),
                    QStringLiteral("The session was lost inside a transaction"), sql);
    if (m_session && !m_inTransaction && peerHasClosed())
        close();
    if (m_session)
        return;
    try {
        open();
    } catch (const Fault& fault) {
        throw fault.whileOpening();
    }
}

void Connection::send(const QString& sql) {
    const bool fresh = !m_session;
    openAsNeeded(sql);
    ++m_statements;
    const QByteArray utf8 = sql.toUtf8();
    if (mysql_send_query(m_session.get(), utf8.constData(), static_cast<unsigned long>(utf8.size())) != 0) {
        // A command that could not be written whole was not carried out, so one more try on a new session is safe.
        if (fresh || m_inTransaction)
            raise(sql);
        close();
        openAsNeeded(sql);
        if (mysql_send_query(m_session.get(), utf8.constData(), static_cast<unsigned long>(utf8.size())) != 0)
            raise(sql);
    }
    if (mysql_read_query_result(m_session.get()) != 0)
        raise(sql);
}

void Connection::raise(const QString& sql) {
    const Fault fault = faultOf(m_session.get(), sql);
    // The session is broken, or the server is about to end it; the next statement opens a new one.
    if (fault.stopsWork())
        close();
    throw fault;
}

Result Connection::query(const QString& sql) {
    openAsNeeded(sql);
    try {
        return fetch(sql);
    } catch (const Fault& fault) {
        if (m_inTransaction || !fault.isConnectionLoss())
            throw;
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
    throw Fault(0, {}, QStringLiteral("The statement yields no rows"), sql);
}

qint64 Connection::execute(const QString& sql) {
    send(sql);
    if (MYSQL_RES* rows = mysql_store_result(m_session.get()))
        mysql_free_result(rows);
    else if (mysql_errno(m_session.get()) != 0)
        raise(sql);
    return qint64(mysql_affected_rows(m_session.get()));
}

} // namespace db
