#pragma once

#include <QString>

/// Line ends and tabs as blanks.
[[nodiscard]] QString singleLine(const QString& text);

/// No more of a text than anybody reads, and with places to break in words that are longer than a line.
[[nodiscard]] QString readable(const QString& text);

/// A tool tip that shows the text as it is; without this one that looks like markup is taken for it.
[[nodiscard]] QString plainToolTip(const QString& text);
