#pragma once

#include <QColor>
#include <QString>

/// A colour as settings hold it: a name such as "clRed" or "clBtnFace", without regard to case, or a number, decimal
/// or hexadecimal behind "$" or "0x". A number holds red in its lowest byte, then green, then blue; one whose highest
/// byte is $FF or $80 is the place of a system colour, which is taken from the palette. "clNone" and "clDefault" give
/// an invalid colour, which paints nothing. Throws std::invalid_argument on any other text.
[[nodiscard]] QColor colourFromText(const QString& text);
