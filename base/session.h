#pragma once

#include "base/branch.h"
#include "toolkit/data/sql_query.h"
#include "toolkit/db/connection.h"

#include <QDateTime>
#include <QString>

#include <functional>
#include <optional>

namespace base {

using Clock = std::function<QDateTime()>;
[[nodiscard]] Clock systemClock();

/// Gives the per-user value of a name, empty where there is none. Throws where there may be one that cannot be read.
using UserSettingReader = std::function<QString(const QString&)>;
[[nodiscard]] UserSettingReader systemUserSetting();

/// Runs writing statements on one connection.
class Command final {
public:
    explicit Command(db::Connection& connection) : m_connection(connection) {}
    /// Throws db::Fault.
    void execute(const QString& sql) { m_connection.execute(sql); }

private:
    db::Connection& m_connection;
};

/// The two connections with their scratch objects, and who is working where: what every screen borrows from the frame.
/// A scratch object holds nothing between two uses; a reader copies its values out before it calls anything that may
/// use the same one.
struct Session {
    explicit Session(Clock now) : clock(std::move(now)) {}

    db::Connection ADOConn;      ///< main database
    db::Connection ADOConn_lang; ///< application database

    Command ADOCom_update{ADOConn};
    Command ADOCom_update2{ADOConn};
    Command ADOCom_update_lang{ADOConn_lang};

    data::SqlQuery sql_temp{ADOConn};
    data::SqlQuery sql_cek{ADOConn};
    data::SqlQuery sql_temp2{ADOConn};
    data::SqlQuery sql_cek2{ADOConn};
    data::SqlQuery sql_temp3{ADOConn};
    data::SqlQuery sql_cek3{ADOConn};
    data::SqlQuery sql_temp_lang{ADOConn_lang};
    data::SqlQuery sql_cek_lang{ADOConn_lang};
    data::SqlQuery sql_cek_lang2{ADOConn_lang};

    /// The one branch that limits the session, 0 where nobody is seen; none where nothing limits it.
    [[nodiscard]] std::optional<qint32> branch() const {
        return session_cab_id.isLimited() ? std::optional(session_cab_id.cab_id_auto()) : std::nullopt;
    }

    Clock clock;
    QString login_id;      ///< who is logged in at the suite, as the launcher passed it
    Branch session_cab_id; ///< what limits every list; nobody is seen before the frame has read it
};

} // namespace base
