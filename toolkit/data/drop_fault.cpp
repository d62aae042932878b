#include "toolkit/data/drop_fault.h"

#include "toolkit/db/fault.h"

namespace data {

Q_LOGGING_CATEGORY(faultLog, "orvane.fault", QtCriticalMsg)

void reportDroppedFault(const char* what, const std::exception& fault) {
    if (const auto* refused = dynamic_cast<const db::Fault*>(&fault))
        qCDebug(faultLog).noquote() << what << '|' << refused->code() << refused->what() << '|'
                                    << refused->statement().left(1000);
    else
        qCDebug(faultLog).noquote() << what << '|' << fault.what();
}

} // namespace data
