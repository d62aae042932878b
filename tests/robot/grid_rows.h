#pragma once

#include "toolkit/ui/data_grid.h"

#include <QStringList>

/// The rows that a command names: FIELD=VALUE ... as stored or as shown, all of them must hold; "#3" by position from
/// 1; "*" for all. Throws CommandError on a field that the grid's data do not have.
[[nodiscard]] std::vector<int> matchingRows(const DataGrid& grid, const QStringList& conditions);

/// The cell as a person reads it; a tick column reads "[x]" or "[ ]".
[[nodiscard]] QString shownCell(const DataGrid& grid, int row, int column);

/// Columns that show, from the left.
[[nodiscard]] std::vector<int> shownColumns(const DataGrid& grid);
