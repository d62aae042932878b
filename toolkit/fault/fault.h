#pragma once

#include <QString>

#include <stdexcept>

namespace fault {

/// What every fault of the program derives from. what() is for the person at the screen.
class Fault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;

    /// What helps an administrator beyond what(): numbers, the statement. Empty where there is nothing more to tell.
    [[nodiscard]] virtual QString details() const { return {}; }

    /// Somebody has stopped the work: nothing to be alarmed at.
    [[nodiscard]] virtual bool isInterrupted() const { return false; }
};

} // namespace fault
