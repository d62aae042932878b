#pragma once

#include <QString>

/// Trims a number text, makes an empty one "0" and replaces each comma by a point; points stay as they are.
[[nodiscard]] QString NormalizeDecimal(const QString& text);

/// Whole number with a point between groups of three digits: the pictures "#,##0." and ",0.;-,0.".
/// The value is rounded to the nearest whole number, ties to even. A value that is no number gives "0".
[[nodiscard]] QString groupedInteger(double value);

/// The picture "#,##0.00": grouped with points, a comma and two decimals, halves away from zero.
[[nodiscard]] QString groupedTwoDecimals(double value);

/// The same with as many decimals as it takes, two at most: "1.500", "2,5".
[[nodiscard]] QString groupedUpToTwoDecimals(double value);

/// Shortest text that reads back as the same double, with a point: for statements and for fields that are typed in. An
/// exponent stands only in what has more than fifteen digits before the point or as many zeros behind it.
[[nodiscard]] QString plainNumber(double value);
