#pragma once

#include "run/reading/memory_lookups.h"
#include "run/reading/statements.h"
#include "toolkit/db/connection.h"

#include <functional>
#include <set>

namespace run {

/// Reads all that a run of its selections can look up, in a number of statements that depends on groups, components and
/// figures only. A read that fails does so for every lookup that needs it, at the place where the lookup stands.
class BulkReader final {
public:
    /// `done` is told after each read how many there were.
    BulkReader(db::Connection& main, db::Connection& app, const SessionSelections& selections,
               std::function<void(int reads)> done = {});

    /// To be called once. Throws db::Fault where the connection is lost or a statement cancelled.
    [[nodiscard]] LookupTables read();

private:
    [[nodiscard]] std::set<int> memberEmployees();
    [[nodiscard]] std::set<int> tickedEmployees();
    void readRules();
    void readWhatRulesName();
    void noteFullAttendance();
    void noteRules(const std::vector<Rule>& rules);
    void noteSource(int source, int id, FigureRead::Grain grain);
    template <typename T>
    [[nodiscard]] Reading<T> reading(const QString& sql, T (*parse)(db::Result));
    void step();

    db::Connection& m_main;
    db::Connection& m_app;
    const SessionSelections& m_selections;
    const std::function<void(int)> m_done;
    std::vector<int> m_components;
    std::set<int> m_groups;
    std::set<int> m_references;
    std::set<FigureRead::Grain> m_fullAttendance; ///< grains in which figure 17 is asked for
    std::set<FigureRead> m_figures;
    LookupTables m_tables;
    int m_reads = 0;
};

} // namespace run
