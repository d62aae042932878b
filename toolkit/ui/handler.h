#pragma once

#include "toolkit/ui/notice_bar.h"

#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <exception>

/// Shows what a handler could not cope with, in the words of whoever raised it.
void showFault(QWidget* screen, const std::exception& fault);

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

/// Runs what an event asks for, at once or when handlers no longer wait, unless the screen is gone by then. A fault
/// ends here with a message: no exception may reach the event loop. The action keeps its own copy of all that it uses.
/// One that succeeds takes away what the screen's notice bar told before it. False where it ended with a fault.
template <typename Action>
bool runHandler(QWidget* screen, Action action) {
    if (HandlersWait::isOn()) {
        const QObject* context = screen ? static_cast<const QObject*>(screen) : qApp;
        QTimer::singleShot(std::chrono::milliseconds(20), context, [screen, action] { runHandler(screen, action); });
        return true;
    }
    const QPointer<NoticeBar> told = NoticeBar::atActionOf(screen);
    try {
        action();
    } catch (const std::exception& fault) {
        showFault(screen, fault);
        return false;
    }
    if (told)
        told->actionSucceeded();
    return true;
}

/// Connects a signal with a screen's handler, guarded by runHandler.
template <typename Sender, typename Signal, typename Screen>
void onEvent(Sender* sender, Signal signal, Screen* screen, void (Screen::*handler)()) {
    // A screen that is being destroyed is no longer of its class when the last of its fields loses the focus.
    QObject* receiver = screen;
    QObject::connect(sender, signal, screen, [receiver, handler] {
        if (auto* alive = qobject_cast<Screen*>(receiver))
            runHandler(alive, [alive, handler] { (alive->*handler)(); });
    });
}
