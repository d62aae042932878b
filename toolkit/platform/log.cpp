#include "toolkit/platform/log.h"

namespace platform {

Q_LOGGING_CATEGORY(platformLog, "orvane.platform", QtFatalMsg)

} // namespace platform
