#pragma once

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>

[[nodiscard]] inline bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Presses the button of the screen that has the focus; false where another field has it.
[[nodiscard]] inline bool pressFocusedButton(const QWidget& screen) {
    auto* button = qobject_cast<QAbstractButton*>(screen.focusWidget());
    if (!qobject_cast<QPushButton*>(button) && !qobject_cast<QToolButton*>(button))
        return false;
    button->click();
    return true;
}
