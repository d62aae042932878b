#pragma once

#include <QLoggingCategory>

#include <exception>
#include <utility>

namespace fault {

/// Category "orvane.fault": silent unless the logging rules switch it on.
Q_DECLARE_LOGGING_CATEGORY(faultLog)

void reportDroppedFault(const char* what, const std::exception& fault);

/// Runs the action and swallows its fault; `what` names the thing that is given up, for the log. True where it ended
/// without a fault.
template <typename Action>
bool dropFault(const char* what, Action&& action) {
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& fault) {
        reportDroppedFault(what, fault);
        return false;
    }
}

} // namespace fault
