#pragma once

#include <QString>

/// The text as a literal for INSERT and UPDATE: every backslash doubled, apostrophes doubled, apostrophes around.
/// The server reads back exactly the given text.
[[nodiscard]] QString EscapeSqlText(const QString& text);

/// The text as a literal for a search condition: apostrophes doubled and put around, backslashes left alone, so that
/// the server still reads escapes such as the four backslashes of a department path. An odd run of backslashes before
/// an apostrophe or the end of the text gets one more, else the value would end its own literal.
[[nodiscard]] QString quotedSqlText(const QString& text);
