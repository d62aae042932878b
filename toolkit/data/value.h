#pragma once

#include "toolkit/data/field.h"

#include <QDateTime>
#include <QVariant>

#include <vector>

namespace data {

/// One value per field, in field order. An invalid QVariant is NULL, else the type is the field's own: qint64, double,
/// QString, QDate or QDateTime.
using Record = std::vector<QVariant>;

/// The value in the field's own type; a blank text becomes NULL in any field but a text. Throws Fault where it does
/// not convert.
[[nodiscard]] QVariant toField(const QVariant& value, const Field& field);

/// How a stored value reads in another type. NULL reads as empty text, 0, 0.0, an invalid date.
/// Dates read as "yyyy-MM-dd", moments as "yyyy-MM-dd HH:mm:ss".
[[nodiscard]] QString textOf(const QVariant& value);
/// Reals are rounded to the nearest whole number, ties to even. Throws Fault on a text that is no number (a blank one
/// reads as 0) and on what does not fit the result.
[[nodiscard]] qint64 integerOf(const QVariant& value);
[[nodiscard]] qint32 integer32Of(const QVariant& value);
[[nodiscard]] double realOf(const QVariant& value);
[[nodiscard]] QDate dateOf(const QVariant& value);
[[nodiscard]] QDateTime momentOf(const QVariant& value);

/// Whether the column as declared can hold the whole number.
[[nodiscard]] bool fitsWidth(qint64 value, const Field& field);

[[nodiscard]] size_t hashValue(const QVariant& value);

} // namespace data
