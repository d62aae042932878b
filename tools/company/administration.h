#pragma once

#include "tools/company/employees.h"

namespace company {

/// Every setting that the program knows.
void writeSettings(db::Connection& app, const Options& options);

/// Administrators and ordinary users of the suite.
void writeLogins(db::Connection& app);

/// What the suite's other modules recorded on the days of the period.
void writeUserLog(db::Connection& main, const Options& options);

} // namespace company
