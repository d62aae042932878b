#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace db {

using Parameters = QMap<QString, QVariant>;

/// The value as a literal: NULL, a number, a quoted date "yyyy-MM-dd", a moment "yyyy-MM-dd HH:mm:ss", an escaped text.
[[nodiscard]] QString literal(const QVariant& value);

/// Replaces every `:name` by its value as a literal, at each occurrence; names without regard to case. Quoted texts,
/// quoted names and comments are left alone. Throws Fault on a name without a value.
[[nodiscard]] QString bindParameters(const QString& sql, const Parameters& values);

} // namespace db
