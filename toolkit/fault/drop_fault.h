#pragma once

#include <QLoggingCategory>

#include <exception>
#include <functional>
#include <utility>

namespace fault {

/// Category "orvane.fault": silent unless the logging rules switch it on.
Q_DECLARE_LOGGING_CATEGORY(faultLog)

/// Takes what was given up, and the fault that cost it. Must not throw.
using DropListener = std::function<void(const char* what, const std::exception& fault)>;

/// Is told of every swallowed fault for as long as it lives; of several, the youngest alone.
class DropListening final {
public:
    explicit DropListening(DropListener listener);
    ~DropListening();
    DropListening(const DropListening&) = delete;
    DropListening& operator=(const DropListening&) = delete;

private:
    friend void reportDroppedFault(const char* what, const std::exception& fault);

    DropListener m_listener;
    DropListening* m_before;
};

/// Tells the log and whoever listens.
void reportDroppedFault(const char* what, const std::exception& fault);

/// Runs the action and swallows its fault. `what` names the thing that is given up, in Indonesian, as a literal that
/// has its row in the language tables; `also` is told where the fault matters to the caller. True where the action
/// ended without a fault.
template <typename Action>
bool dropFault(const char* what, Action&& action, const DropListener& also = {}) {
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& fault) {
        reportDroppedFault(what, fault);
        if (also)
            also(what, fault);
        return false;
    }
}

} // namespace fault
