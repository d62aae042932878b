#include "run/reading/compute.h"

#include "run/reading/bulk_reader.h"

#include <algorithm>

namespace run {

namespace {

/// Lines of a run: members that could be read, or ticks.
int expectedLines(const SessionSelections& selections, const LookupTables& tables) {
    if (selections.employees)
        return int(std::ranges::count_if(selections.employees->clb_emp_id, &EmployeeItem::ticked));
    int lines = 0;
    for (const int grp_id : selections.groups)
        if (const auto& members = tables.members.at(grp_id); !members.fault())
            lines += int(members.value().size());
    return lines;
}

} // namespace

Notice computeRun(Run& run, const SessionSelections& selections, db::Connection& main, db::Connection& app,
                  const std::function<void(const Progress&)>& progress) {
    const auto tell = [&](Progress::Stage stage, int done, int of) {
        if (progress)
            progress({stage, done, of});
    };
    BulkReader reader(main, app, selections, [&](int reads) { tell(Progress::Stage::Reading, reads, 0); });
    LookupTables tables = reader.read();
    const int lines = expectedLines(selections, tables);
    MemoryLookups lookups(selections.period, std::move(tables));
    return proses(run, selections, lookups, [&](int done) { tell(Progress::Stage::Computing, done, lines); });
}

} // namespace run
