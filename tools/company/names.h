#pragma once

#include <QString>

#include <span>

namespace company {

/// Invented people and places to pick from; a few hold an apostrophe, since real ones do.
[[nodiscard]] std::span<const QString> maleNames();
[[nodiscard]] std::span<const QString> femaleNames();
[[nodiscard]] std::span<const QString> familyNames();
[[nodiscard]] std::span<const QString> streets();

} // namespace company
