#pragma once

#include "toolkit/report/band.h"

namespace payroll {

/// A factor with two decimals where it has any, else as a whole number.
[[nodiscard]] QString faktorText(double faktor);

/// The factor of the line that the set stands on; blank where the rule is not a normal one.
[[nodiscard]] report::Hook ppDBT_faktorPrint(const data::DataSet& lines);
/// The unit of the factor, under the same condition.
[[nodiscard]] report::Hook ppDBT_kondisiPrint(const data::DataSet& lines);
/// Underlined where the component is transferred and not paid in cash.
[[nodiscard]] report::Hook ppRegion4Print(const data::DataSet& earnings);
/// The code of a deduction follows the earnings too: the last line of the employee's, on which their list has stopped.
[[nodiscard]] report::Hook ppRegion1Print(const data::DataSet& earnings);

/// Place of the slip's foot below the top of the earnings summary, in millimetres: under the longer list.
[[nodiscard]] double ppSubReport3Print(int earnings, int deductions);

/// Background of the slip's frame, by the number of slips before it.
[[nodiscard]] QColor ppRegion3Print(int slips);

} // namespace payroll
