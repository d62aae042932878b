#include "toolkit/data/value.h"

#include "toolkit/data/fault.h"
#include "toolkit/text/number_text.h"

#include <QHash>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace data {

namespace {

const QString dateShape = u"yyyy-MM-dd"_s;
const QString momentShape = u"yyyy-MM-dd HH:mm:ss"_s;

[[noreturn]] void refuse(const QVariant& value, const char* wanted) {
    throw Fault(u"'%1' does not read as %2"_s.arg(value.toString(), QLatin1String(wanted)));
}

qint64 rounded(double value) {
    const double whole = std::nearbyint(value);
    // 2^63 is the first double beyond the signed 64-bit range; the test is false for what is no number, too.
    if (!(whole >= -0x1p63 && whole < 0x1p63))
        refuse(value, "a whole number");
    return qint64(whole);
}

/// Flags stand in the tables as -1 and 0; every other type is left as it is.
QVariant withoutBool(const QVariant& value) {
    return value.typeId() == QMetaType::Bool ? QVariant(value.toBool() ? -1 : 0) : value;
}

/// NULL, or what stands for it in a field that holds no text.
bool isBlank(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString().trimmed().isEmpty();
    case QMetaType::QDate:
        return !value.toDate().isValid();
    case QMetaType::QDateTime:
        return !value.toDateTime().isValid();
    default:
        return value.isNull();
    }
}

} // namespace

QString textOf(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return plainNumber(value.toDouble());
    case QMetaType::QDate:
        return value.toDate().toString(dateShape);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(momentShape);
    default:
        return value.toString();
    }
}

qint64 integerOf(const QVariant& value) {
    if (isBlank(value))
        return 0;
    bool ok = false;
    if (value.typeId() != QMetaType::Double && value.typeId() != QMetaType::Float) {
        const qint64 whole = value.toLongLong(&ok);
        if (ok)
            return whole;
    }
    return rounded(realOf(value));
}

qint32 integer32Of(const QVariant& value) {
    const qint64 wide = integerOf(value);
    if (wide < std::numeric_limits<qint32>::min() || wide > std::numeric_limits<qint32>::max())
        refuse(value, "a whole number of 32 bits");
    return qint32(wide);
}

double realOf(const QVariant& value) {
    if (isBlank(value))
        return 0;
    bool ok = false;
    const double real = value.toDouble(&ok);
    if (!ok || !std::isfinite(real))
        refuse(value, "a number");
    return real;
}

QDate dateOf(const QVariant& value) {
    return value.typeId() == QMetaType::QDate ? value.toDate() : momentOf(value).date();
}

QDateTime momentOf(const QVariant& value) {
    if (isBlank(value))
        return {};
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime();
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().startOfDay();
    QDateTime moment;
    if (value.typeId() == QMetaType::QString)
        moment = QDateTime::fromString(value.toString().trimmed(), Qt::ISODate);
    if (!moment.isValid())
        refuse(value, "a date");
    return moment;
}

QVariant toField(const QVariant& given, const Field& field) {
    const QVariant value = withoutBool(given);
    if (isBlank(value) && (field.type != FieldType::Text || value.typeId() != QMetaType::QString))
        return {};
    switch (field.type) {
    case FieldType::Integer:
        return integerOf(value);
    case FieldType::Real:
        return realOf(value);
    case FieldType::Date:
        return dateOf(value);
    case FieldType::Moment:
        return momentOf(value);
    case FieldType::Text:
        break;
    }
    const QString text = textOf(value);
    return field.size > 0 ? text.left(field.size) : text;
}

bool fitsWidth(qint64 value, const Field& field) {
    if (field.bits <= 0 || field.bits >= 64)
        return !field.isUnsigned || value >= 0;
    const qint64 values = qint64(1) << field.bits;
    return field.isUnsigned ? value >= 0 && value < values : value >= -values / 2 && value < values / 2;
}

size_t hashValue(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return 0;
    case QMetaType::LongLong:
        return qHash(value.toLongLong());
    case QMetaType::Double:
        return qHash(value.toDouble());
    case QMetaType::QDate:
        return qHash(value.toDate().toJulianDay());
    case QMetaType::QDateTime:
        return qHash(value.toDateTime());
    default:
        return qHash(value.toString());
    }
}

} // namespace data
