#pragma once

#include <functional>

class QWidget;

namespace base {

/// Runs what a form does when it appears, behind the events that show it and unless it is gone by then. A fault is
/// shown; then the form gives up: one that could not be opened is of no use to anybody.
void queueActivation(QWidget& form, std::function<void()> formActivate, std::function<void()> giveUp);

} // namespace base
