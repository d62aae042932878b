#include "toolkit/text/rounding.h"

#include <cmath>

namespace {

/// limit: the first power of two above what the integer holds; its negative still fits.
Extended roundedWithin(Extended value, Extended limit) {
    const Extended whole = std::rint(value);
    if (!(whole >= -limit && whole < limit))
        throw ArithmeticFault("A number does not fit its integer form");
    return whole;
}

} // namespace

qint64 rounded64(Extended value) {
    return qint64(roundedWithin(value, 0x1p63L));
}

qint32 rounded32(Extended value) {
    return qint32(roundedWithin(value, 0x1p31L));
}

Extended quotient(Extended dividend, Extended divisor) {
    if (divisor == 0)
        throw ArithmeticFault("Division by zero");
    return dividend / divisor;
}

double bulat_desimal(Extended x) {
    return double(Extended(rounded64(x * 100 + 0.01L)) / 100);
}

qint32 bulat_ke_atas(qint32 x, qint32 unit) {
    if (unit == 0)
        throw ArithmeticFault("Division by zero");
    const qint64 remainder = qint64(x) % unit;
    return remainder > 0 ? wrapped32(x - remainder + unit) : x;
}

qint32 wrapped32(qint64 value) {
    return qint32(quint32(quint64(value)));
}

qint32 wrappedSum(qint32 a, qint32 b) {
    return qint32(quint32(a) + quint32(b));
}

qint32 wrappedDifference(qint32 a, qint32 b) {
    return qint32(quint32(a) - quint32(b));
}
