#include "toolkit/db/session_setup.h"

#include "toolkit/db/connection.h"

#include <mysql.h>

#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace db {

namespace {

/// The server chooses how the user proves who he is. Of the library's ways these never send the password itself; the
/// others hand it, or a key to it, to whoever asks.
constexpr char authentication[] = "mysql_native_password,client_ed25519";

// Quiet for ten seconds, then three questions: a peer that is gone is noticed after 25.
constexpr int keepAliveIdle = 10;
constexpr int keepAliveInterval = 5;
constexpr int keepAliveCount = 3;
constexpr int unacknowledgedMilliseconds = 20'000;

void run(st_mysql* session, const QByteArray& sql) {
    if (mysql_real_query(session, sql.constData(), static_cast<unsigned long>(sql.size())) != 0)
        throw faultOf(session, QString::fromLatin1(sql));
}

bool isUtf8(const QString& characterSet) {
    return characterSet == u"utf8mb4" || characterSet == u"utf8mb3" || characterSet == u"utf8";
}

} // namespace

Fault faultOf(st_mysql* session, const QString& sql) {
    return {mysql_errno(session), QString::fromLatin1(mysql_sqlstate(session)), QString::fromUtf8(mysql_error(session)),
            sql};
}

void setOptions(st_mysql* session, std::chrono::seconds connect, Encryption encryption) {
    const auto seconds = unsigned(connect.count());
    mysql_options(session, MYSQL_OPT_CONNECT_TIMEOUT, &seconds);
    // The name "localhost" would make the client library look for a socket file; the settings always name a port.
    const unsigned protocol = MYSQL_PROTOCOL_TCP;
    mysql_options(session, MYSQL_OPT_PROTOCOL, &protocol);
    mysql_options(session, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    mysql_options(session, MARIADB_OPT_RESTRICTED_AUTH, authentication);
    // To begin with, whatever way the server prefers: it then names the one that the user's account has.
    mysql_options(session, MYSQL_DEFAULT_AUTH, "mysql_native_password");
    // A server may answer any statement by asking for a file of this machine.
    const unsigned no = 0;
    mysql_options(session, MYSQL_OPT_LOCAL_INFILE, &no);
    // Without a certificate to check, this enforces nothing: it only takes what the server offers.
    const my_bool encrypt = encryption == Encryption::WhereOffered;
    mysql_options(session, MYSQL_OPT_SSL_ENFORCE, &encrypt);
}

void neverBlock(int socket) {
    fcntl(socket, F_SETFL, fcntl(socket, F_GETFL) | O_NONBLOCK);
}

void keepAlive(st_mysql* session) {
    const int socket = int(mysql_get_socket(session));
    const std::pair<int, int> values[] = {{TCP_KEEPIDLE, keepAliveIdle},
                                          {TCP_KEEPINTVL, keepAliveInterval},
                                          {TCP_KEEPCNT, keepAliveCount},
                                          {TCP_USER_TIMEOUT, unacknowledgedMilliseconds}};
    const int on = 1;
    setsockopt(socket, SOL_SOCKET, SO_KEEPALIVE, &on, sizeof on);
    for (const auto& [option, value] : values)
        setsockopt(socket, IPPROTO_TCP, option, &value, sizeof value);
    neverBlock(socket);
}

QString unsafeIn(const SessionValues& values) {
    for (const QString& characterSet : {values.client, values.connection, values.results})
        if (!isUtf8(characterSet))
            return u"the session's character set is %1 instead of utf8mb4"_s.arg(characterSet);
    for (const QString& mode : values.sqlMode.split(u','))
        if (mode == u"NO_BACKSLASH_ESCAPES" || mode == u"ANSI_QUOTES")
            return u"the session's mode holds %1"_s.arg(mode);
    return {};
}

SessionIdentity agreeOnSession(st_mysql* session) {
    // Servers can be told to disregard what the handshake says of the character set. The empty mode: the tables' users
    // rely on lax servers, too long texts are cut, and statements mix count(*) with columns.
    run(session, "SET NAMES utf8mb4");
    run(session, "SET SESSION sql_mode='', autocommit=1");
    run(session, "SELECT @@character_set_client, @@character_set_connection, @@character_set_results, @@sql_mode, "
                 "concat_ws(':', @@hostname, @@port, @@server_id), connection_id()");
    MYSQL_RES* rows = mysql_store_result(session);
    if (!rows)
        throw faultOf(session);
    Result values(rows);
    values.next();
    const QString fault = unsafeIn({values.text(0), values.text(1), values.text(2), values.text(3)});
    if (!fault.isEmpty())
        throw Fault(0, {}, u"Texts are not safe on this server: %1"_s.arg(fault), {});
    return {values.text(4), values.integer(5)};
}

} // namespace db
