#pragma once

#include "run/reading/figures.h"

#include <QMap>
#include <QString>

#include <vector>

namespace run {

// Statements of attendance figures, all built from the definitions in figures.h. Named parameters: :tanggal_awal is the
// first day, :tanggal_akhir the day after the last one, :emp_id_auto the employee.

/// One figure of one employee over one window: its result column stands in the first row.
[[nodiscard]] QString statementForEmployee(const Figure& figure);

/// sum_id to sum_as, as sum_report holds them.
using CountSettings = QMap<int, int>;

/// Public holidays: TO_DAYS() of the date to the number of times that it is entered.
using HolidayTimes = QMap<int, int>;

/// What the wording of bulk statements depends on.
struct BulkSettings {
    CountSettings counts;
    HolidayTimes holidays; ///< of the window
};

/// One part of a figure as a column of a bulk statement.
struct BulkColumn {
    const FigurePart* part = nullptr;
    QString conditions; ///< what tells its rows from others of the table, may be empty
    QString expression; ///< with its braces still
    bool inDays = false;
};

/// The part as the settings want it counted, or in days whatever they say.
[[nodiscard]] BulkColumn bulkColumn(const Figure& figure, const FigurePart& part, const BulkSettings& settings);
[[nodiscard]] BulkColumn dayColumn(const FigurePart& part, const HolidayTimes& holidays);

/// Whether one statement can hold both columns.
[[nodiscard]] bool shareStatement(const BulkColumn& a, const BulkColumn& b);

enum class Grouping { ByEmployee, ByEmployeeAndDay };

/// The values of the employees in `employees`, a select of emp_id_auto: emp_id_auto, hari (days since :tanggal_awal, 0
/// where not grouped by day), then c1, c2 and so on, NULL where the employee has no such row. Columns share a
/// statement.
[[nodiscard]] QString statementForAll(const std::vector<BulkColumn>& columns, Grouping grouping,
                                      const QString& employees);

} // namespace run
