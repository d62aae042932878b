#include "toolkit/text/number_text.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QString grouped(QString digits) {
    const qsizetype first = digits.startsWith(u'-') ? 1 : 0;
    for (qsizetype at = digits.size() - 3; at > first; at -= 3)
        digits.insert(at, u'.');
    return digits;
}

QString withoutNegativeZero(const QString& number) {
    for (const QChar c : number)
        if (c >= u'1' && c <= u'9')
            return number;
    return number.startsWith(u'-') ? number.mid(1) : number;
}

} // namespace

QString NormalizeDecimal(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return u"0"_s;
    return QString(trimmed).replace(u',', u'.');
}

QString groupedInteger(double value) {
    if (!std::isfinite(value))
        return u"0"_s;
    return grouped(withoutNegativeZero(QString::number(std::nearbyint(value), 'f', 0)));
}

QString groupedTwoDecimals(double value) {
    if (!std::isfinite(value))
        return u"0,00"_s;
    const QString number = withoutNegativeZero(QString::number(value, 'f', 2));
    return grouped(number.left(number.size() - 3)) + u',' + number.right(2);
}

QString groupedUpToTwoDecimals(double value) {
    QString number = groupedTwoDecimals(value);
    while (number.endsWith(u'0') && number.contains(u','))
        number.chop(1);
    return number.endsWith(u',') ? number.chopped(1) : number;
}

QString plainNumber(double value) {
    const double size = std::abs(value);
    const bool isReadable = size == 0 || (size >= 1e-15 && size < 1e15);
    return QString::number(value, isReadable ? 'f' : 'g', QLocale::FloatingPointShortest);
}
