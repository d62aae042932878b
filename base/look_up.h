#pragma once

#include "toolkit/db/connection.h"

#include <QLatin1String>

namespace base {

/// The number that a counting statement gives. Throws db::Fault.
[[nodiscard]] qint64 countOf(db::Connection& connection, const QString& sql);

/// The number behind the highest one of an integer column, 1 for an empty table. Nothing keeps others from taking it
/// too. Throws db::Fault.
[[nodiscard]] qint64 nextKey(db::Connection& connection, QStringView table, QStringView column);

/// The value of a setting of the suite, empty where there is none. Throws db::Fault.
[[nodiscard]] QString readSetting(db::Connection& application, QLatin1String key);

} // namespace base
