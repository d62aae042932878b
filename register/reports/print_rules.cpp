#include "register/reports/print_rules.h"

#include "toolkit/text/number_text.h"

#include <algorithm>
#include <cmath>

namespace payroll {

namespace {

constexpr int jenisNormal = 0; // NULL reads as it too
constexpr int caraBayarTunai = 0;
constexpr double footMm = 0.2292 * 25.4;

} // namespace

QString faktorText(double faktor) {
    return std::fmod(std::nearbyint(faktor * 100), 100) != 0 ? groupedTwoDecimals(faktor) : groupedInteger(faktor);
}

report::Hook ppDBT_faktorPrint(const data::DataSet& lines) {
    return [&lines](report::Printing& item) {
        item.visible = lines.integer(u"jenis") == jenisNormal;
        item.text = faktorText(lines.real(u"faktor"));
    };
}

report::Hook ppDBT_kondisiPrint(const data::DataSet& lines) {
    return [&lines](report::Printing& item) { item.visible = lines.integer(u"jenis") == jenisNormal; };
}

report::Hook ppRegion4Print(const data::DataSet& earnings) {
    return [&earnings](report::Printing& item) { item.underline = earnings.integer(u"cara_bayar") != caraBayarTunai; };
}

report::Hook ppRegion1Print(const data::DataSet& earnings) {
    return ppRegion4Print(earnings);
}

double ppSubReport3Print(int earnings, int deductions) {
    return std::max(0, deductions - earnings) * report::lineMm + footMm;
}

QColor ppRegion3Print(int slips) {
    return slips % 2 == 0 ? QColor(0xee, 0xee, 0xee) : QColor(0xfd, 0xfd, 0xfd);
}

} // namespace payroll
