#pragma once

#include <QString>
#include <QWidget>

/// Replaces what stands in the control, key by key.
void typeText(QWidget* control, const QString& text);

/// Makes the control's window the active one after a dialog or a list has closed: without a window manager nobody does.
void giveFocusBack(QWidget* control);

/// Presses a key or a combination such as "Alt+S" where the focus is, on the topmost form; shortcuts act. Throws
/// CommandFault on a name that no key has.
void pressKeys(QWidget* topmost, const QString& name);
