#pragma once

#include "toolkit/text/rounding.h"

#include <QString>

/// An amount of money while it is computed: ten-thousandths of a rupiah.
struct Money {
    qint64 units = 0;

    friend bool operator==(const Money&, const Money&) = default;
};

inline constexpr int unitsPerRupiah = 10000;

/// units: ten-thousandths, rounded to the nearest whole one, ties to even. Throws ArithmeticFault beyond 64 bits.
[[nodiscard]] Money moneyOfUnits(Extended units);

/// Rounded to four decimals, ties to even. Throws ArithmeticFault beyond 64 bits.
[[nodiscard]] Money moneyOfRupiah(double rupiah);

[[nodiscard]] double rupiahOf(Money money);

/// Whole rupiah, half a rupiah to the even neighbour.
[[nodiscard]] qint64 wholeRupiah(Money money);

/// The picture "#,##0." on whole rupiah: 1500000.5 gives "1.500.000".
[[nodiscard]] QString moneyText(Money money);
