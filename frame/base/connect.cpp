#include "frame/base/connect.h"

#include "frame/base/log.h"
#include "frame/settings_file/settings_file.h"

namespace frame {

namespace {

/// A name that cannot be reached: the connect then fails at once instead of after the client library's time-out.
const QString unreachableServer = QStringLiteral("aaa");

/// The server to connect to. An address is taken only if it answers an echo; a name is resolved and not asked.
QString reachableServer(const QString& server, platform::PingSocket& ping) {
    if (!platform::IsIpAddress(server))
        return platform::ResolveHost(server);
    const bool answers = ping.PingHost(server);
    qCInfo(startLog) << "ping" << server << (answers ? "answered" : "not answered");
    return answers ? server : unreachableServer;
}

} // namespace

void openSessions(const QString& folder, platform::PingSocket& ping, Session& session) {
    const settings::DatabaseSettings file = settings::readSettingsFile(folder + QStringLiteral("/user.tvk"));
    db::ConnectionSettings connection{.host = reachableServer(file.server, ping),
                                      .port = file.port,
                                      .user = file.user,
                                      .password = file.password,
                                      .database = file.database};
    session.ADOConn.configure(connection);
    session.ADOConn.open();
    connection.database += QStringLiteral("_app");
    session.ADOConn_lang.configure(connection);
    session.ADOConn_lang.open();
}

} // namespace frame
