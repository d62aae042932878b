#include "tools/company/salary.h"

using namespace Qt::StringLiterals;

namespace company {

namespace {

// Numbers of attendance figures.
enum Figure {
    Terlambat = 1,
    Hadir = 4,
    TidakHadir = 5,
    Hadir100 = 17,
    LemburNormal = 23,
    LemburLibur = 24,
    LemburPerShift = 28,
    JamBebas = 50
};

const QString times = u"*"_s;
const QString noConstant = u"T"_s;

Source figure(int id) {
    return {Source::Figure, id};
}

/// An amount as it stands.
Rule fixed(Component component, double amount) {
    return {.component = component, .amount = amount};
}

/// So many rupiah for each unit of the figure.
Rule each(Component component, int id, double amount) {
    return {.component = component,
            .formula = figure(id),
            .firstOperator = noConstant,
            .secondOperator = times,
            .amount = amount};
}

struct Band {
    double lowest;
    double highest; ///< 0: no upper edge
    double factor;
};

/// A tier of a figure, taken day by day: what lies in the band, times the factor, times the employee's rate.
Rule dailyTier(Component component, int id, const Band& band) {
    return {.component = component,
            .condition = figure(id),
            .lowest = band.lowest,
            .highest = band.highest,
            .formula = figure(id),
            .firstOperator = times,
            .constant = band.factor,
            .secondOperator = times,
            .amount = 0,
            .daily = true,
            .join = 1};
}

/// A share of the basic pay.
Rule shareOfPay(Component component, double share) {
    return {.component = component, .formula = {Source::Other, GajiPokok}, .firstOperator = times, .constant = share};
}

Rule when(Source condition, double lowest, double highest, Rule rule) {
    rule.condition = condition;
    rule.lowest = lowest;
    rule.highest = highest;
    return rule;
}

Rule replacing(Rule rule) {
    rule.join = 2;
    return rule;
}

using Rules = std::vector<Rule>;

Rules operator+(Rules left, const Rules& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

// One and a half times the hourly wage for the first hour, twice for the others; on days off twice for eight hours,
// three times for the ninth, four times after that.
Rules overtime() {
    return {dailyTier(LemburHariKerja, LemburNormal, {0, 1, 1.5}), dailyTier(LemburHariKerja, LemburNormal, {1, 0, 2}),
            dailyTier(LemburHariLibur, LemburLibur, {0, 8, 2}), dailyTier(LemburHariLibur, LemburLibur, {8, 9, 3}),
            dailyTier(LemburHariLibur, LemburLibur, {9, 0, 4})};
}

Rules lateness(double first, double further) {
    Rule upToOneHour = when(figure(Terlambat), 0.25, 1, each(PotonganTerlambat, Terlambat, first));
    Rule above = when(figure(Terlambat), 1, 0, each(PotonganTerlambat, Terlambat, further));
    upToOneHour.join = above.join = 1;
    return {upToOneHour, above};
}

Rules socialSecurity() {
    return {shareOfPay(BpjsKesehatan, 0.01), shareOfPay(BpjsHariTua, 0.02), shareOfPay(BpjsPensiun, 0.01)};
}

Rules monthlyDeductions() {
    return Rules{each(PotonganTidakHadir, TidakHadir, 0)} + socialSecurity() + Rules{fixed(IuranKoperasi, 0)};
}

// Whoever comes more than 22 days gets the higher rate for all of them.
Rules progressiveTransport() {
    return {when(figure(Hadir), 0, 22, each(UangTransport, Hadir, 20000)),
            replacing(when(figure(Hadir), 22, 0, each(UangTransport, Hadir, 22500)))};
}

Rules management() {
    const Source pay{Source::Other, GajiPokok};
    return {fixed(GajiPokok, 13000000),    fixed(TunjanganJabatan, 2000000),
            fixed(UangTransport, 600000),  when(pay, 1, 0, fixed(BpjsKesehatan, 120000)),
            shareOfPay(BpjsHariTua, 0.02), fixed(BpjsPensiun, 105474),
            fixed(IuranKoperasi, 0)};
}

Rules office() {
    return Rules{fixed(GajiPokok, 4700000), fixed(TunjanganJabatan, 0), each(UangMakan, Hadir, 25000)} +
           progressiveTransport() + overtime() + lateness(15000, 30000) + monthlyDeductions();
}

Rules production() {
    return Rules{fixed(GajiPokok, 4200000), each(UangMakan, Hadir, 20000), each(UangTransport, Hadir, 15000)} +
           overtime() +
           Rules{each(LemburShift, LemburPerShift, 2500), when(figure(Hadir100), 1, 1, fixed(PremiHadir, 200000))} +
           lateness(10000, 20000) + monthlyDeductions();
}

Rules security() {
    return Rules{fixed(GajiPokok, 4200000), each(UangMakan, Hadir, 20000), each(TunjanganJaga, JamBebas, 75000)} +
           overtime() + Rules{when(figure(Hadir100), 1, 1, fixed(PremiHadir, 150000))} + lateness(10000, 20000) +
           monthlyDeductions();
}

Rules dayLabour() {
    return Rules{each(GajiPokok, Hadir, 170000), each(UangMakan, Hadir, 15000)} + overtime() +
           Rules{shareOfPay(BpjsHariTua, 0.02)};
}

} // namespace

std::vector<Rule> rulesOf(Group group) {
    switch (group) {
    case Manajemen:
        return management();
    case Staf:
        return office();
    case Produksi:
        return production();
    case Keamanan:
        return security();
    case Harian:
        return dayLabour();
    }
    return {};
}

} // namespace company
