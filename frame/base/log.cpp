#include "frame/base/log.h"

namespace frame {

Q_LOGGING_CATEGORY(startLog, "orvane.start", QtFatalMsg)

} // namespace frame
