#include "base/activation.h"

#include "toolkit/ui/handler.h"

#include <utility>

namespace base {

void queueActivation(QWidget& form, std::function<void()> formActivate, std::function<void()> giveUp) {
    const auto activate = [&form, formActivate = std::move(formActivate), giveUp = std::move(giveUp)] {
        if (form.isVisible())
            runHandler(&form, formActivate, giveUp);
    };
    QMetaObject::invokeMethod(&form, activate, Qt::QueuedConnection);
}

} // namespace base
