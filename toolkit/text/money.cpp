#include "toolkit/text/money.h"

#include "toolkit/text/number_text.h"

Money moneyOfUnits(Extended units) {
    return {rounded64(units)};
}

Money moneyOfRupiah(double rupiah) {
    return moneyOfUnits(Extended(rupiah) * unitsPerRupiah);
}

double rupiahOf(Money money) {
    return double(Extended(money.units) / unitsPerRupiah);
}

qint64 wholeRupiah(Money money) {
    return rounded64(Extended(money.units) / unitsPerRupiah);
}

QString moneyText(Money money) {
    // Whole rupiah stay below 2^50, which a double holds exactly.
    return groupedInteger(double(wholeRupiah(money)));
}
