#include "toolkit/ui/caption.h"
#include "toolkit/ui/data_grid.h"
#include "toolkit/ui/tree_box.h"
#include "tools/robot/commands.h"
#include "tools/robot/keyboard.h"
#include "tools/robot/pointer.h"
#include "tools/robot/shown.h"

#include <QApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QMenu>
#include <QTreeWidget>
#include <QtTest/qtestkeyboard.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

DataGrid* gridOf(QWidget* control, const QString& path) {
    auto* grid = qobject_cast<DataGrid*>(control);
    if (!grid)
        throw CommandFault(u"%1 is no grid"_s.arg(path));
    return grid;
}

bool holds(const DataGrid& grid, int row, const QString& condition) {
    const QString name = condition.section(u'=', 0, 0);
    const QString wanted = condition.section(u'=', 1);
    const int column = grid.columnOf(name);
    if (column >= 0 && grid.rows().textAt(row, column) == wanted)
        return true;
    if (!grid.dataSet()->hasField(name))
        throw CommandFault(u"no field %1"_s.arg(name));
    return data::textOf(grid.dataSet()->valueAt(row, grid.dataSet()->fieldIndex(name))) == wanted;
}

/// FIELD=VALUE ... as stored or as shown, all of them must hold; "#3" by position from 1; "*" for all.
bool matches(const DataGrid& grid, int row, const QStringList& conditions) {
    if (conditions[0].startsWith(u'#'))
        return conditions[0].mid(1).toInt() == row + 1;
    return conditions[0] == u"*" ||
           std::ranges::all_of(conditions, [&](const QString& one) { return holds(grid, row, one); });
}

/// The rows that the words behind the grid's name tell; at least one, unless they tell of all.
std::vector<int> rowsOf(const DataGrid& grid, const Words& words) {
    std::vector<int> rows;
    for (int row = 0; row < grid.rows().rowCount(); ++row)
        if (matches(grid, row, words.mid(1)))
            rows.push_back(row);
    if (rows.empty() && words[1] != u"*")
        throw CommandFault(u"%1 has no row %2"_s.arg(words[0], words.mid(1).join(u' ')));
    return rows;
}

/// Columns that show, from the left.
std::vector<int> shownColumns(const DataGrid& grid) {
    std::vector<int> columns;
    for (int visual = 0; visual < grid.horizontalHeader()->count(); ++visual)
        if (const int column = grid.horizontalHeader()->logicalIndex(visual); !grid.isColumnHidden(column))
            columns.push_back(column);
    return columns;
}

bool isTick(const DataGrid& grid, int column) {
    return grid.columns()[std::size_t(column)]->show() == Show::Tick;
}

/// The cell as a person reads it; a tick column reads "[x]" or "[ ]".
QString shownCell(const DataGrid& grid, int row, int column) {
    if (isTick(grid, column))
        return data::integerOf(grid.rows().valueAt(row, column)) == -1 ? u"[x]"_s : u"[ ]"_s;
    return oneLine(grid.rows().textAt(row, column));
}

void clickCell(DataGrid& grid, int row, int column, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QModelIndex index = grid.model()->index(row, column);
    grid.scrollTo(index);
    clickPoint(grid.viewport(), grid.visualRect(index).intersected(grid.viewport()->rect()).center(), modifiers);
    Robot::settle();
}

enum class Click { Ticks, OnlySelects };

/// The first shown column whose cells do that when they are clicked.
int columnThat(Click click, const DataGrid& grid) {
    for (const int column : shownColumns(grid))
        if (isTick(grid, column) == (click == Click::Ticks))
            return column;
    throw CommandFault(u"%1 shows no such column to click"_s.arg(grid.objectName()));
}

void makeRowCurrent(Robot& robot, const Words& words) {
    DataGrid* grid = gridOf(robot.reachable(words[0]), words[0]);
    const std::vector<int> rows = rowsOf(*grid, words);
    if (rows.empty())
        throw CommandFault(u"%1 has no rows"_s.arg(words[0]));
    clickCell(*grid, rows.front(), columnThat(Click::OnlySelects, *grid));
}

void setTicks(Robot& robot, const Words& words, const QString& wanted) {
    DataGrid* grid = gridOf(robot.reachable(words[0]), words[0]);
    const int column = columnThat(Click::Ticks, *grid);
    int toggled = 0;
    for (const int row : rowsOf(*grid, words)) {
        if (row >= grid->rows().rowCount() || shownCell(*grid, row, column) == wanted)
            continue;
        clickCell(*grid, row, column);
        ++toggled;
    }
    Robot::print(QString::number(toggled));
}

void selectRows(Robot& robot, const Words& words) {
    DataGrid* grid = gridOf(robot.reachable(words[0]), words[0]);
    if (grid->selectionMode() == QAbstractItemView::SingleSelection)
        throw CommandFault(u"%1 selects one row at a time"_s.arg(words[0]));
    const int column = columnThat(Click::OnlySelects, *grid);
    for (const int row : rowsOf(*grid, words))
        if (!grid->selectionModel()->isSelected(grid->model()->index(row, column)))
            clickCell(*grid, row, column, Qt::ControlModifier);
}

void editCell(Robot& robot, const Words& words) {
    DataGrid* grid = gridOf(robot.reachable(words[0]), words[0]);
    const int column = grid->columnOf(words[1]);
    if (column < 0 || grid->isColumnHidden(column))
        throw CommandFault(u"%1 shows no column %2"_s.arg(words[0], words[1]));
    const QModelIndex index = grid->model()->index(grid->currentIndex().row(), column);
    if (!index.isValid() || !(index.flags() & Qt::ItemIsEditable))
        throw CommandFault(u"column %1 of %2 is read-only"_s.arg(words[1], words[0]));
    grid->setCurrentIndex(index);
    grid->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(grid, Qt::Key_F2);
    QWidget* editor = QApplication::focusWidget();
    typeText(editor, words[2]);
    QTest::keyClick(editor, Qt::Key_Return);
}

void printGrid(Robot& robot, const Words& words) {
    const DataGrid* grid = gridOf(robot.control(words[0]), words[0]);
    const std::vector<int> columns = shownColumns(*grid);
    QStringList captions;
    for (const int column : columns)
        captions << grid->columns()[std::size_t(column)]->caption();
    Robot::print(captions.join(u'\t'));
    for (int row = 0; row < grid->rows().rowCount(); ++row) {
        QStringList cells;
        for (const int column : columns)
            cells << shownCell(*grid, row, column);
        const QString mark = row == grid->dataSet()->row() ? u">"_s : QString();
        Robot::print(mark + cells.join(u'\t'));
    }
}

void printColours(Robot& robot, const Words& words) {
    const DataGrid* grid = gridOf(robot.control(words[0]), words[0]);
    for (int row = 0; row < grid->rows().rowCount(); ++row)
        for (const int column : shownColumns(*grid)) {
            const QVariant colour = grid->model()->index(row, column).data(Qt::BackgroundRole);
            if (colour.isValid())
                Robot::print(u"%1 %2 %3"_s.arg(row + 1).arg(grid->columns()[std::size_t(column)]->field(),
                                                            colour.value<QColor>().name()));
        }
}

void checkEntries(Robot& robot, const Words& words, Qt::CheckState wanted) {
    auto* list = qobject_cast<QListWidget*>(robot.reachable(words[0]));
    if (!list)
        throw CommandFault(u"%1 is no check list"_s.arg(words[0]));
    bool found = words[1] == "*"_L1;
    for (int i = 0; i < list->count(); ++i) {
        QListWidgetItem* item = list->item(i);
        if (words[1] != "*"_L1 && item->text() != words[1])
            continue;
        found = true;
        if (item->checkState() == wanted)
            continue;
        list->setCurrentItem(item);
        QTest::keyClick(list, Qt::Key_Space);
        if (i < list->count() && list->item(i)->checkState() != wanted)
            throw CommandFault(u"%1 does not take the tick on %2"_s.arg(words[0], quoted(words[1])));
    }
    if (!found)
        throw CommandFault(u"%1 has no entry %2"_s.arg(words[0], quoted(words[1])));
}

void chooseMenuEntry(Robot&, const Words& words) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        throw CommandFault(u"no menu is dropped down"_s);
    for (QAction* entry : menu->actions()) {
        if (captionText(entry->text()) != words[0] || !entry->isVisible())
            continue;
        if (!entry->isEnabled())
            throw CommandFault(u"%1 is disabled"_s.arg(words[0]));
        clickPoint(menu, menu->actionGeometry(entry).center());
        return;
    }
    throw CommandFault(u"the menu has no entry %1"_s.arg(quoted(words[0])));
}

QTreeWidgetItem* childEntry(QTreeWidgetItem* parent, const QString& text) {
    for (int i = 0; i < parent->childCount(); ++i)
        if (parent->child(i)->text(0) == text)
            return parent->child(i);
    return nullptr;
}

} // namespace

bool chooseInTree(QWidget* control, const QString& path, const QString& steps) {
    auto* box = qobject_cast<TreeBox*>(control);
    if (!box)
        return false;
    QTreeWidgetItem* entry = box->tree().invisibleRootItem();
    for (const QString& step : steps.split(u'/'))
        if (!(entry = childEntry(entry, step)))
            throw CommandFault(u"%1 has no entry %2"_s.arg(path, quoted(steps)));
    clickPoint(box, box->rect().center());
    box->tree().scrollToItem(entry);
    clickPoint(box->tree().viewport(), box->tree().visualItemRect(entry).center());
    return true;
}

const Actions& gridActions() {
    static const Actions table{
        {u"row"_s, {2, anyNumber, makeRowCurrent}},
        {u"tick"_s, {2, anyNumber, [](Robot& r, const Words& w) { setTicks(r, w, u"[x]"_s); }}},
        {u"untick"_s, {2, anyNumber, [](Robot& r, const Words& w) { setTicks(r, w, u"[ ]"_s); }}},
        {u"select"_s, {2, anyNumber, selectRows}},
        {u"cell"_s, {3, 3, editCell}},
        {u"grid"_s, {1, 1, printGrid}},
        {u"colors"_s, {1, 1, printColours}},
        {u"check"_s, {2, 2, [](Robot& r, const Words& w) { checkEntries(r, w, Qt::Checked); }}},
        {u"uncheck"_s, {2, 2, [](Robot& r, const Words& w) { checkEntries(r, w, Qt::Unchecked); }}},
        {u"menu"_s, {1, 1, chooseMenuEntry}},
    };
    return table;
}
