#include "toolkit/fault/drop_fault.h"

#include "toolkit/fault/fault.h"

using namespace Qt::StringLiterals;

namespace fault {

Q_LOGGING_CATEGORY(faultLog, "orvane.fault", QtCriticalMsg)

namespace {

/// The youngest listener: guards stand in rooms that know nobody who could be told.
DropListening* listening = nullptr;

void log(const char* what, const std::exception& fault) {
    QStringList told{QString::fromUtf8(what), QString::fromUtf8(fault.what())};
    if (const auto* known = dynamic_cast<const Fault*>(&fault); known && !known->details().isEmpty())
        told << known->details();
    qCDebug(faultLog).noquote() << told.join(u" | "_s);
}

} // namespace

DropListening::DropListening(DropListener listener) :
    m_listener(std::move(listener)), m_before(std::exchange(listening, this)) {}

DropListening::~DropListening() {
    listening = m_before;
}

void reportDroppedFault(const char* what, const std::exception& fault) {
    if (faultLog().isDebugEnabled())
        log(what, fault);
    if (listening)
        listening->m_listener(what, fault);
}

} // namespace fault
