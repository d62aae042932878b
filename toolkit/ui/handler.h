#pragma once

#include "toolkit/ui/notice_bar.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <exception>
#include <utility>

/// Shows what a handler could not cope with, in the words of whoever raised it.
void showFault(QWidget* screen, const std::exception& fault);

/// A shortcut presses its button without taking the focus from where somebody has just typed: what stands there counts.
void finishTyping(const QWidget& screen);

/// Runs what an event asks for. A fault ends here with a message: no exception may reach the event loop. True where it
/// ended without one.
template <typename Action>
bool showingFaults(QWidget* screen, Action&& action) {
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception& fault) {
        showFault(screen, fault);
        return false;
    }
}

/// While one lives, events run inside a handler that is still at work, and handlers that they start wait for its end:
/// it may be using what they would use.
class HandlersWait final {
public:
    HandlersWait() { ++s_count; }
    ~HandlersWait() { --s_count; }
    HandlersWait(const HandlersWait&) = delete;
    HandlersWait& operator=(const HandlersWait&) = delete;

    [[nodiscard]] static bool isOn() { return s_count > 0; }

private:
    static inline int s_count = 0;
};

/// Whether the action under way was refused, as its own check or message tells. Actions inside it, on a screen that it
/// opened, count for themselves.
class ActionRefusal final {
public:
    ActionRefusal() : m_around(s_refused) { s_refused = false; }
    ~ActionRefusal() { s_refused = m_around; }
    ActionRefusal(const ActionRefusal&) = delete;
    ActionRefusal& operator=(const ActionRefusal&) = delete;

    static void note() { s_refused = true; }
    [[nodiscard]] static bool isNoted() { return s_refused; }

private:
    static inline bool s_refused = false;
    const bool m_around;
};

/// The same for an action of the person at the screen, at once or when handlers no longer wait, unless the screen is
/// gone by then; the action keeps its own copy of all that it uses. One that succeeds takes away what the screen's
/// notice bar told before it; behind the message of one that fails comes `afterFault`.
template <typename Action, typename AfterFault = void (*)()>
void runHandler(
    QWidget* screen, Action action, AfterFault afterFault = [] {}) {
    if (HandlersWait::isOn()) {
        QTimer::singleShot(std::chrono::milliseconds(20), screen,
                           [screen, action, afterFault] { runHandler(screen, action, afterFault); });
        return;
    }
    finishTyping(*screen);
    const QPointer<NoticeBar> told = NoticeBar::atActionOf(*screen);
    const ActionRefusal refusal;
    if (!showingFaults(screen, action))
        afterFault();
    else if (!ActionRefusal::isNoted() && told)
        told->actionSucceeded();
}

/// Connects a signal with an action on a screen, guarded by runHandler.
template <typename Sender, typename Signal, typename Action>
void onEvent(Sender* sender, Signal signal, QWidget* screen, Action action) {
    QObject::connect(sender, signal, screen, [screen, action] { runHandler(screen, action); });
}

/// The same with a screen's handler, which may take the signal's arguments.
template <typename Sender, typename Signal, typename Screen, typename... Arguments>
void onEvent(Sender* sender, Signal signal, Screen* screen, void (Screen::*handler)(Arguments...)) {
    // A screen that is being destroyed is no longer of its class when the last of its fields loses the focus.
    QObject* receiver = screen;
    QObject::connect(sender, signal, screen, [receiver, handler](Arguments... arguments) {
        if (auto* alive = qobject_cast<Screen*>(receiver))
            runHandler(alive, [alive, handler, arguments...] { (alive->*handler)(arguments...); });
    });
}
