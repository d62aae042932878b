#pragma once

#include "toolkit/fault/fault.h"

#include <QtGlobal>

#include <limits>

/// Arithmetic between money and factors: ties come out right only with a significand of 64 bits or more.
using Extended = long double;
static_assert(std::numeric_limits<Extended>::digits >= 64);

/// A division by zero, or a number that its integer form cannot hold.
class ArithmeticFault final : public fault::Fault {
public:
    using fault::Fault::Fault;
};

/// The nearest whole number, ties to the even neighbour. Throws ArithmeticFault where it does not fit.
[[nodiscard]] qint64 rounded64(Extended value);
[[nodiscard]] qint32 rounded32(Extended value);

/// dividend / divisor; throws ArithmeticFault on a divisor of 0, also for 0 / 0.
[[nodiscard]] Extended quotient(Extended dividend, Extended divisor);

/// Two decimals: x times 100, plus 0.01, rounded with ties to even, divided by 100. The addend is part of the rule: it
/// lifts a value on a tie. Throws ArithmeticFault where x times 100 does not fit 64 bits.
[[nodiscard]] double bulat_desimal(Extended x);

/// Up to a multiple of the unit: a value whose remainder is above 0 loses it and gains one unit. Throws ArithmeticFault
/// on a unit of 0.
[[nodiscard]] qint32 bulat_ke_atas(qint32 x, qint32 unit);

/// 32-bit arithmetic that wraps round: what is beyond 2^31 - 1 comes back from below.
[[nodiscard]] qint32 wrapped32(qint64 value);
[[nodiscard]] qint32 wrappedSum(qint32 a, qint32 b);
[[nodiscard]] qint32 wrappedDifference(qint32 a, qint32 b);
