#pragma once

#include "run/rules/figure_numbers.h"

#include <QLatin1String>

#include <span>
#include <vector>

namespace run {

/// A table of the suite that attendance figures read, under its alias.
struct AttendanceTable {
    QLatin1String name;
    QLatin1String alias;
    QLatin1String date;       ///< date column
    QLatin1String conditions; ///< what every row must meet, may be empty
    QLatin1String setting;    ///< join of the setting that its amounts depend on, may be empty
};

/// How the date of a row stands to the table of public holidays.
enum class Holidays {
    Any,
    Only,  ///< joined to the holidays, so a date that stands there twice counts twice
    Except ///< not among the holidays of the window
};

/// Rows of one table that make a figure, and the two ways to count them. In the two expressions the braces stand
/// around each argument of an aggregate.
struct FigurePart {
    const AttendanceTable* table = nullptr;
    QLatin1String conditions;
    QLatin1String amount;
    QLatin1String days;
    Holidays holidays = Holidays::Any;
};

/// The row of sum_report that turns a figure into a count of rows, and the value it does it with; 0: no such row, the
/// figure is always a count.
struct CountSwitch {
    int sum_id = 0;
    int sum_as = 0;
};

/// One attendance figure. Of several parts only the first one with rows for an employee counts; they are not added.
struct Figure {
    int id_kode_report = 0;
    QLatin1String column; ///< result column
    QLatin1String alias;  ///< of the derived tables in the statement
    QLatin1String value;  ///< column inside the derived tables
    CountSwitch countSwitch;
    std::vector<FigurePart> parts;
};

/// Switches of free hours: they follow overtime where free_ot says that they are overtime, else attendance.
inline constexpr CountSwitch attendanceSwitch{4, 2};
inline constexpr CountSwitch overtimeSwitch{13, 2};

/// All figures that have a statement, by ascending number.
[[nodiscard]] std::span<const Figure> figures();

/// The figure of that number, or none.
[[nodiscard]] const Figure* findFigure(int id_kode_report);

} // namespace run
