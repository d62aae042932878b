#include "toolkit/text/bool_text.h"

#include <stdexcept>

bool boolFromText(const QString& text) {
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (isNumber)
        return number != 0;
    for (const bool value : {false, true})
        if (text.compare(value ? QLatin1String("true") : QLatin1String("false"), Qt::CaseInsensitive) == 0)
            return value;
    throw std::invalid_argument(QStringLiteral("'%1' is not a valid boolean value").arg(text).toStdString());
}
