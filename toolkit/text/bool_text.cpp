#include "toolkit/text/bool_text.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

bool boolFromText(const QString& text) {
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (isNumber)
        return number != 0;
    for (const bool value : {false, true})
        if (text.compare(value ? "true"_L1 : "false"_L1, Qt::CaseInsensitive) == 0)
            return value;
    throw std::invalid_argument(u"'%1' is not a valid boolean value"_s.arg(text).toStdString());
}
