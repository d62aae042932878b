#include "tests/robot/grid_rows.h"

#include "tests/robot/script.h"
#include "tests/robot/shown.h"

#include <QHeaderView>

#include <algorithm>
#include <numeric>

namespace {

bool holds(const DataGrid& grid, int row, const QString& condition) {
    const QString name = condition.section(u'=', 0, 0);
    const QString wanted = condition.section(u'=', 1);
    const int column = grid.columnOf(name);
    if (column >= 0 && grid.rows().textAt(row, column) == wanted)
        return true;
    if (!grid.dataSet()->hasField(name))
        throw CommandError(QStringLiteral("no field %1").arg(name));
    return data::textOf(grid.dataSet()->valueAt(row, grid.dataSet()->fieldIndex(name))) == wanted;
}

std::vector<int> rowByPosition(const QString& word, int count) {
    const int row = word.mid(1).toInt() - 1;
    return row >= 0 && row < count ? std::vector<int>{row} : std::vector<int>{};
}

} // namespace

std::vector<int> matchingRows(const DataGrid& grid, const QStringList& conditions) {
    const int count = grid.rows().rowCount();
    if (conditions.first().startsWith(u'#'))
        return rowByPosition(conditions.first(), count);
    std::vector<int> rows(std::size_t(count), 0);
    std::iota(rows.begin(), rows.end(), 0);
    if (conditions.first() != QLatin1String("*"))
        std::erase_if(rows, [&](int row) {
            return !std::ranges::all_of(conditions, [&](const QString& one) { return holds(grid, row, one); });
        });
    return rows;
}

QString shownCell(const DataGrid& grid, int row, int column) {
    if (grid.columns()[std::size_t(column)]->show() == Show::Tick)
        return data::integerOf(grid.rows().valueAt(row, column)) == -1 ? QStringLiteral("[x]") : QStringLiteral("[ ]");
    return oneLine(grid.rows().textAt(row, column));
}

std::vector<int> shownColumns(const DataGrid& grid) {
    std::vector<int> columns;
    for (int visual = 0; visual < grid.horizontalHeader()->count(); ++visual)
        if (const int column = grid.horizontalHeader()->logicalIndex(visual); !grid.isColumnHidden(column))
            columns.push_back(column);
    return columns;
}
