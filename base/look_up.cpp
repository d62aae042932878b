#include "base/look_up.h"

#include "toolkit/db/result.h"

using namespace Qt::StringLiterals;

namespace base {

qint64 countOf(db::Connection& connection, const QString& sql) {
    db::Result rows = connection.query(sql);
    return rows.next() ? rows.integer(0) : 0;
}

qint64 nextKey(db::Connection& connection, QStringView table, QStringView column) {
    return countOf(connection, u"select max(%1) from %2"_s.arg(column, table)) + 1;
}

QString readSetting(db::Connection& application, QLatin1String key) {
    db::Result rows = application.query(u"select param_value from global_setting where param_id='%1'"_s.arg(key));
    return rows.next() ? rows.text(0) : QString();
}

} // namespace base
