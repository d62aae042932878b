#pragma once

#include <QLoggingCategory>

namespace platform {

/// "orvane.platform", off by default: what this room swallows leaves its line here.
Q_DECLARE_LOGGING_CATEGORY(platformLog)

} // namespace platform
