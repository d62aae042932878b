#pragma once

#include <QString>
#include <QWidget>

/// Replaces what stands in the control, key by key.
void typeText(QWidget* control, const QString& text);

/// Presses a key or a combination such as "Alt+S" where the focus is, on the topmost form; shortcuts act. Throws
/// CommandError on a name that no key has.
void pressKeys(QWidget* topmost, const QString& name);
