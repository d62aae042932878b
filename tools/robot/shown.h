#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

/// What a person reads on the control: its text, -1 or 0 for a check box, a date as shown. Throws CommandFault for a
/// control that shows no text.
[[nodiscard]] QString shownText(const QWidget* control);

/// The entries of a list-like control as shown; a ticked one begins with "[x] ".
[[nodiscard]] QStringList shownItems(const QWidget* control);

[[nodiscard]] bool isReadOnly(const QWidget* control);

/// The text with \n and \t in place of the real ones.
[[nodiscard]] QString oneLine(const QString& text);

/// The text in double quotes with \" \\ \n, as scripts write it.
[[nodiscard]] QString quoted(const QString& text);
