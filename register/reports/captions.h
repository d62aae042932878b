#pragma once

#include "toolkit/report/captions.h"

namespace payroll {

/// The fixed texts of the payroll reports as the program has them.
[[nodiscard]] report::Captions defaultCaptions();

} // namespace payroll
