#pragma once

#include <QString>

namespace data {

enum class FieldType { Integer, Real, Text, Date, Moment };

struct Field {
    QString name;
    FieldType type = FieldType::Text;
    int bits = 64; ///< declared width of an integer column; values are held in 64 bits whatever it says
    bool isUnsigned = false;
    int size = 0; ///< longest text in characters, longer ones are cut; 0 for any length
};

} // namespace data
