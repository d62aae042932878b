#pragma once

#include "run/reading/figure_statements.h"
#include "run/reading/memory_lookups.h"
#include "toolkit/db/connection.h"

#include <functional>
#include <set>

namespace run {

/// Reads attendance figures of many employees over one period, all parts of one table in one statement. Where such a
/// statement fails, its parts are read one by one, so that a figure is lost only by its own fault.
class FigureReader final {
public:
    /// places: emp_id_auto to the place of the employee's values. The callback is told of every statement.
    FigureReader(db::Connection& main, const Window& period, const QHash<int, int>& places, std::function<void()> done);

    [[nodiscard]] std::map<FigureRead, Reading<FigureValues>> read(const std::set<FigureRead>& wanted);

private:
    /// One part of a wanted figure. Without a row of this part a value is NaN.
    struct Part {
        FigureRead figure;
        BulkColumn column;
        Reading<FigureValues> values;
    };

    [[nodiscard]] std::vector<Part> partsOf(const std::set<FigureRead>& wanted, FigureRead::Grain grain);
    void readAll(std::vector<Part>& parts, FigureRead::Grain grain);
    void readTogether(const std::vector<Part*>& parts, FigureRead::Grain grain);
    [[nodiscard]] std::vector<FigureValues> readColumns(const std::vector<Part*>& parts, FigureRead::Grain grain);
    [[nodiscard]] std::size_t valuesPerEmployee(FigureRead::Grain grain) const;

    db::Connection& m_main;
    const Window m_period;
    const QHash<int, int>& m_places;
    const std::function<void()> m_done;
    Reading<CountSettings> m_counts;
    Reading<HolidayTimes> m_holidays;
};

} // namespace run
