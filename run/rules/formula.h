#pragma once

#include "run/rules/condition_text.h"
#include "run/rules/rule.h"
#include "toolkit/text/money.h"

namespace run {

/// Working values of one evaluation of one rule row; all start cleared.
struct Working {
    Money nilai_uang;
    double nilai_kondisi = 0; ///< how much of the condition's value lies inside the band
    double nilai_asli = 0;    ///< the condition's value as read
    double nilai_batas = 0;   ///< what a replacing row takes in place of the formula's parameter
    double faktor = 0;
    Money hasil;
    ConditionText teks_kondisi;
    bool lolos = true;
};

/// Tests nilai_kondisi against the rule's band and reduces it to the part that lies between the edges. A value above
/// the band counts as its full width, so that rows with adjoining bands split one value into tiers.
void applyBand(const Rule& rule, Working& working);

/// The parameter combined with the constant, then with nilai_uang: sets hasil and teks_kondisi.
/// Throws ArithmeticFault on a divisor of 0 and where an amount does not fit.
void applyFormula(const Rule& rule, double parameter, Working& working);

} // namespace run
