#pragma once

#include "run/reading/statements.h"
#include "toolkit/db/connection.h"

#include <functional>

namespace run {

/// How far a computation is: reads done, of a number not known (0), then lines done of those there will be.
struct Progress {
    enum class Stage { Reading, Computing };

    Stage stage = Stage::Reading;
    int done = 0;
    int of = 0;
};

/// Replaces the lines of the run by a computation of the selections, reading in bulk. Rounding and totals are not part
/// of it. Throws db::Fault where the connection is lost or a statement cancelled; the run is then as it was. Never
/// throws for a read that fails otherwise or for an impossible amount.
[[nodiscard]] Notice computeRun(Run& run, const SessionSelections& selections, db::Connection& main,
                                db::Connection& app, const std::function<void(const Progress&)>& progress = {});

} // namespace run
