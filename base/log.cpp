#include "base/log.h"

namespace base {

Q_LOGGING_CATEGORY(startLog, "orvane.start", QtFatalMsg)

} // namespace base
