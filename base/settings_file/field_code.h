#pragma once

#include <QString>
#include <QStringList>

namespace settings {

/// What a field reads as when it was not written by the suite's own tool.
inline constexpr QStringView foreignValue = u"aaa";

/// Replaces the content of `list` by the fields of `text`. The delimiter, blanks and line ends part fields; a run of
/// blanks parts once. A field that starts with a double quote goes up to its closing quote, "" inside standing for one
/// quote; without a closing quote it goes to the end. Throws std::logic_error where `list` is null.
void SplitFields(QChar delimiter, const QString& text, QStringList* list);

/// The UTF-8 text behind padded base64 of the standard alphabet. Strict: one foreign character, a wrong length or bytes
/// that are no UTF-8 give an empty text, so that a damaged field can never yield a part of its value.
[[nodiscard]] QString DecodeBase64(const QString& text);

/// The value of one encoded field, or `foreignValue` where the two marks at its end are not the expected ones.
[[nodiscard]] QString DecodeField(const QString& text);

/// The reverse of DecodeField, for whatever writes the file.
[[nodiscard]] QString EncodeField(const QString& value);

} // namespace settings
