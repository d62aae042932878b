#include "toolkit/ui/data_grid.h"

#include "toolkit/fault/drop_fault.h"
#include "toolkit/ui/band_header.h"
#include "toolkit/ui/plain_text.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSet>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What a cell takes beside its text, in pixels.
constexpr int textRoom = 10;

/// Draws a cell in its own colour on the current row, too, and numbers lined up.
class CellDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->backgroundBrush.style() != Qt::NoBrush)
            option->state &= ~QStyle::State_Selected;
        const auto* grid = static_cast<const DataGrid*>(parent());
        option->text = grid->columns()[std::size_t(index.column())]->linedUp(option->text);
    }
};

} // namespace

DataGrid::DataGrid(QWidget* parent) : QTableView(parent), m_model(new GridModel(this)) {
    setHorizontalHeader(new BandHeader(this));
    setModel(m_model);
    setItemDelegate(new CellDelegate(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
}

void DataGrid::setColumns(const std::vector<ColumnPlan>& columns, const std::vector<BandPlan>& bands) {
    for (const BandPlan& plan : bands) {
        m_bands.push_back(new GridBand(plan, this));
        connect(m_bands.back(), &GridBand::changed, horizontalHeader()->viewport(), qOverload<>(&QWidget::update));
    }
    std::vector<GridColumn*> objects;
    for (const ColumnPlan& plan : columns)
        objects.push_back(new GridColumn(plan, this));
    m_model->setColumns(objects);
    if (std::ranges::any_of(objects, &GridColumn::isEditable))
        setEditTriggers(EditKeyPressed | DoubleClicked | AnyKeyPressed);
    for (std::size_t i = 0; i < objects.size(); ++i)
        setColumnHidden(int(i), objects[i]->isHidden());
    if (bands.empty())
        return;
    static_cast<BandHeader*>(horizontalHeader())->setBands([this](int column) -> const GridBand* {
        for (const GridBand* band : m_bands)
            if (band->objectName() == m_model->columns()[std::size_t(column)]->band())
                return band;
        return nullptr;
    });
}

void DataGrid::setDataSet(data::DataSet* set) {
    if (dataSet())
        disconnect(dataSet(), nullptr, this, nullptr);
    m_model->setDataSet(set);
    if (!set)
        return;
    for (const auto signal : {&data::DataSet::opened, &data::DataSet::cursorMoved, &data::DataSet::reset})
        connect(set, signal, this, &DataGrid::followCursor);
    connect(set, &data::DataSet::flushRequested, this, [this] {
        if (QWidget* editor = indexWidget(currentIndex()))
            commitData(editor);
    });
    followCursor();
}

int DataGrid::columnOf(QStringView field) const {
    for (std::size_t i = 0; i < columns().size(); ++i)
        if (field.compare(columns()[i]->field(), Qt::CaseInsensitive) == 0)
            return int(i);
    return -1;
}

std::vector<int> DataGrid::selectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::ranges::sort(rows);
    return rows;
}

void DataGrid::followCursor() {
    const QScopedValueRollback following(m_following, true);
    if (!dataSet()->isOpen() || dataSet()->isEmpty())
        return;
    const int column = currentIndex().isValid() ? currentIndex().column() : 0;
    setCurrentIndex(m_model->index(dataSet()->row(), column));
}

void DataGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (m_following || !current.isValid() || current.row() == dataSet()->row())
        return;
    dataSet()->goToRow(current.row());
    Q_EMIT rowChangedByUser();
}

int DataGrid::tickColumn() const {
    for (std::size_t i = 0; i < columns().size(); ++i)
        if (columns()[i]->show() == Show::Tick)
            return int(i);
    return -1;
}

void DataGrid::toggle(int column) {
    if (column < 0 || dataSet()->isEmpty())
        return;
    const GridColumn& tick = *columns()[std::size_t(column)];
    const bool ticked = data::integerOf(m_model->valueAt(dataSet()->row(), column)) == -1;
    const QString text = ticked ? u"0"_s : u"-1"_s;
    dataSet()->editValue(tick.field(), text.toInt());
    Q_EMIT toggled(tick.field(), text);
    dataSet()->post();
}

void DataGrid::mousePressEvent(QMouseEvent* event) {
    m_rowBeforePress = currentIndex().row();
    QTableView::mousePressEvent(event);
}

bool DataGrid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool opened = QTableView::edit(index, trigger, event);
    if (opened && indexWidget(index) && dataSet()->state() == data::State::Browse)
        fault::dropFault("perubahan baris yang hanya dapat dibaca", [this] { dataSet()->edit(); });
    return opened;
}

void DataGrid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid() || index != currentIndex())
        return;
    if (columns()[std::size_t(index.column())]->show() == Show::Tick)
        toggle(index.column());
    if (index.row() == m_rowBeforePress)
        Q_EMIT rowChangedByUser();
}

bool DataGrid::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString text = index.isValid() ? m_model->textAt(index.row(), index.column()) : QString();
    const bool isCut = fontMetrics().horizontalAdvance(text) + textRoom > columnWidth(index.column());
    QToolTip::showText(help->globalPos(), isCut ? plainToolTip(text) : QString(), this, visualRect(index));
    return true;
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && tickColumn() >= 0)
        toggle(tickColumn());
    else
        QTableView::keyPressEvent(event);
}

namespace {

/// Widths of the texts of one column. Measuring a text costs far more than looking it up, and most columns repeat a few
/// texts many times.
int widestText(const GridModel& rows, int column, const QFontMetrics& metrics) {
    int widest = 0;
    QSet<QString> measured;
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QString text = rows.columns()[std::size_t(column)]->linedUp(rows.textAt(row, column).trimmed());
        const qsizetype known = measured.size();
        measured.insert(text);
        if (measured.size() > known)
            widest = std::max(widest, metrics.horizontalAdvance(text));
    }
    return widest;
}

} // namespace

void FitGridColumns(DataGrid& grid) {
    constexpr int leastWidth = 10;
    constexpr int captionRoom = 27;
    const QFontMetrics metrics = grid.fontMetrics();
    const GridModel& rows = grid.rows();
    for (int column = 0; column < rows.columnCount(); ++column) {
        if (grid.isColumnHidden(column))
            continue;
        const QString caption = grid.columns()[std::size_t(column)]->caption().trimmed();
        const int captionWidth = metrics.horizontalAdvance(caption) + captionRoom;
        const int textWidth = widestText(rows, column, metrics) + textRoom;
        grid.setColumnWidth(column, std::max({leastWidth, captionWidth, textWidth}));
    }
    grid.setEnabled(rows.rowCount() > 0);
}
