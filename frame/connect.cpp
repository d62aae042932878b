#include "frame/connect.h"

#include "base/log.h"
#include "base/settings_file/settings_file.h"

using namespace Qt::StringLiterals;

namespace frame {

namespace {

/// A name that cannot be reached: the connect then fails at once instead of after the client library's time-out.
const QString unreachableServer = u"aaa"_s;

/// The server to connect to. An address is taken only if it answers an echo; a name is resolved and not asked.
QString reachableServer(const QString& server, platform::PingSocket& ping) {
    if (!platform::IsIpAddress(server))
        return platform::ResolveHost(server);
    const bool answers = ping.PingHost(server);
    qCInfo(base::startLog) << "ping" << server << (answers ? "answered" : "not answered");
    return answers ? server : unreachableServer;
}

} // namespace

void openSessions(const QString& folder, platform::PingSocket& ping, base::Session& session) {
    const settings::DatabaseSettings file = settings::readSettingsFile(folder + u"/user.tvk"_s);
    db::ConnectionSettings connection{.host = reachableServer(file.server, ping),
                                      .port = file.port,
                                      .user = file.user,
                                      .password = file.password,
                                      .database = file.database};
    session.ADOConn.configure(connection);
    session.ADOConn.open();
    connection.database += u"_app"_s;
    session.ADOConn_lang.configure(connection);
    session.ADOConn_lang.open();
}

} // namespace frame
