#pragma once

#include "base/paper/heading.h"

namespace payroll {

/// The sets that the papers print; the last two belong to the first by `emp_id_auto`.
struct Sources {
    data::DataSet& sql_detail;
    data::DataSet& sql_subdetail;
    data::DataSet& sql_subdetail2;
};

[[nodiscard]] report::Report recapDesign(const Sources& sources, const base::paper::Wording& wording);
[[nodiscard]] report::Report detailDesign(const Sources& sources, const base::paper::Wording& wording);
[[nodiscard]] report::Report slipDesign(const Sources& sources, const base::paper::Wording& wording);

} // namespace payroll
