#include "toolkit/ui/grid_model.h"

#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/number_text.h"

#include <utility>

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent) {}

void GridModel::setDataSet(data::DataSet* set) {
    beginResetModel();
    if (m_set)
        disconnect(m_set, nullptr, this, nullptr);
    m_set = set;
    takeFields();
    endResetModel();
    if (!set)
        return;
    const auto readAnew = [this] {
        beginResetModel();
        takeFields();
        endResetModel();
    };
    for (const auto signal : {&data::DataSet::opened, &data::DataSet::closed, &data::DataSet::reset})
        connect(set, signal, this, readAnew);
    connect(set, &data::DataSet::recordChanged, this, &GridModel::recordChanged);
    connect(set, &data::DataSet::rowAboutToBeInserted, this, [this](int row) { beginInsertRows({}, row, row); });
    connect(set, &data::DataSet::rowInserted, this, &GridModel::endInsertRows);
    connect(set, &data::DataSet::rowAboutToBeRemoved, this, [this](int row) { beginRemoveRows({}, row, row); });
    connect(set, &data::DataSet::rowRemoved, this, &GridModel::endRemoveRows);
}

void GridModel::setColumns(std::vector<GridColumn*> columns) {
    beginResetModel();
    m_columns = std::move(columns);
    takeFields();
    endResetModel();
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        connect(m_columns[i], &GridColumn::changed, this,
                [this, i] { Q_EMIT headerDataChanged(Qt::Horizontal, int(i), int(i)); });
}

void GridModel::takeFields() {
    m_fields.assign(m_columns.size(), -1);
    if (!m_set || !m_set->isOpen())
        return;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_set->hasField(m_columns[i]->field()))
            m_fields[i] = m_set->fieldIndex(m_columns[i]->field());
}

void GridModel::recordChanged(int row) {
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !m_set || !m_set->isOpen() ? 0 : m_set->rowCount();
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_columns.size());
}

const QVariant& GridModel::valueAt(int row, int column) const {
    static const QVariant nothing;
    const int field = m_fields[std::size_t(column)];
    return field < 0 ? nothing : m_set->valueAt(row, field);
}

QString GridModel::textAt(int row, int column) const {
    return m_columns[std::size_t(column)]->displayText(valueAt(row, column));
}

bool GridModel::isNumber(int column) const {
    const int field = m_fields[std::size_t(column)];
    if (field < 0)
        return false;
    const data::FieldType type = m_set->fields()[std::size_t(field)].type;
    return type == data::FieldType::Integer || type == data::FieldType::Real;
}

/// Black on light, white on dark.
static QColor readableOn(const QColor& background) {
    constexpr int middleGray = 128;
    return qGray(background.rgb()) < middleGray ? Qt::white : Qt::black;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const GridColumn& column = *m_columns[std::size_t(index.column())];
    const QVariant& value = valueAt(index.row(), index.column());
    switch (role) {
    case Qt::DisplayRole:
        return column.displayText(value);
    case Qt::EditRole:
        return column.editText(value);
    case Qt::TextAlignmentRole:
        if (column.show() == Show::Mark)
            return Qt::AlignCenter;
        return QVariant::fromValue(isNumber(index.column()) ? Qt::AlignRight | Qt::AlignVCenter
                                                            : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::CheckStateRole:
        if (column.show() == Show::Tick)
            return value.toInt() == -1 ? Qt::Checked : Qt::Unchecked;
        break;
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        if (const QColor colour = m_cellColour ? m_cellColour({column, value}) : QColor(); colour.isValid())
            return role == Qt::BackgroundRole ? colour : readableOn(colour);
        break;
    default:
        break;
    }
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_columns[std::size_t(section)]->caption();
    return {};
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const QString text = isNumber(index.column()) ? NormalizeDecimal(value.toString()) : value.toString();
    return fault::dropFault("isian yang tidak cocok dengan kolomnya", [&] {
        if (m_set->row() != index.row())
            m_set->goToRow(index.row());
        m_set->editValue(m_columns[std::size_t(index.column())]->field(), text);
    });
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    const GridColumn& column = *m_columns[std::size_t(index.column())];
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    flags.setFlag(Qt::ItemIsUserCheckable, column.show() == Show::Tick);
    flags.setFlag(Qt::ItemIsEditable, column.isEditable() && (!m_cellOpen || m_cellOpen(column, index.row())));
    return flags;
}
