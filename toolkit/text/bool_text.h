#pragma once

#include <QString>

/// A boolean as settings hold it: a number, 0 for false and anything else for true, or "true" or "false" without regard
/// to case. Throws std::invalid_argument on any other text.
[[nodiscard]] bool boolFromText(const QString& text);
