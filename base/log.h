#pragma once

#include <QLoggingCategory>

namespace base {

/// "orvane.start", off by default: why a start ended without a word.
Q_DECLARE_LOGGING_CATEGORY(startLog)

} // namespace base
