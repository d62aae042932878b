#include "toolkit/fault/drop_fault.h"

#include "toolkit/fault/fault.h"

namespace fault {

Q_LOGGING_CATEGORY(faultLog, "orvane.fault", QtCriticalMsg)

void reportDroppedFault(const char* what, const std::exception& fault) {
    if (!faultLog().isDebugEnabled())
        return;
    QStringList told{QString::fromUtf8(what), QString::fromUtf8(fault.what())};
    if (const auto* known = dynamic_cast<const Fault*>(&fault); known && !known->details().isEmpty())
        told << known->details();
    qCDebug(faultLog).noquote() << told.join(QStringLiteral(" | "));
}

} // namespace fault
