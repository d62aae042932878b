#pragma once

#include "toolkit/ui/notice_bar.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <exception>
#include <utility>

/// Shows what a handler could not cope with, in the words of whoever raised it.
void showFault(QWidget* screen, const std::exception& fault);

/// Runs what an event asks for. A fault ends here with a message: no exception may reach the event loop. An action that
/// succeeds takes away what the screen's notice bar told before it. True where it ended without a fault.
template <typename Action>
bool runHandler(QWidget* screen, Action&& action) {
    const QPointer<NoticeBar> told = NoticeBar::atActionOf(screen);
    try {
        std::forward<Action>(action)();
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
            runHandler(alive, [&] { (alive->*handler)(); });
    });
}
