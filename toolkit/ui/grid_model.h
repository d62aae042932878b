#pragma once

#include "toolkit/ui/grid_column.h"

#include "toolkit/data/data_set.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QPointer>

#include <functional>
#include <vector>

/// A cell on its way to the screen, for rules that colour it.
struct CellInView {
    const GridColumn& column;
    const QVariant& value;
};
/// The background that a cell shall have; an invalid colour leaves it as it is.
using CellColour = std::function<QColor(const CellInView&)>;
/// Whether a cell of an editable column takes text.
using CellOpen = std::function<bool(const GridColumn& column, int row)>;

/// Shows the records of a data set as rows and the columns of a grid as columns. Holds no data of its own.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit GridModel(QObject* parent);

    void setDataSet(data::DataSet* set);
    [[nodiscard]] data::DataSet* dataSet() const { return m_set; }
    void setColumns(std::vector<GridColumn*> columns);
    [[nodiscard]] const std::vector<GridColumn*>& columns() const { return m_columns; }
    void setCellColour(CellColour rule) { m_cellColour = std::move(rule); }
    void setCellOpen(CellOpen rule) { m_cellOpen = std::move(rule); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Puts a typed text into the record of the row; false where the field does not take it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    [[nodiscard]] const QVariant& valueAt(int row, int column) const;
    [[nodiscard]] QString textAt(int row, int column) const;

private:
    void takeFields();
    void recordChanged(int row);
    [[nodiscard]] bool isNumber(int column) const;

    QPointer<data::DataSet> m_set; ///< a screen's sets go before its widgets
    std::vector<GridColumn*> m_columns;
    std::vector<int> m_fields; ///< place of each column's field in the set, -1 where it has none
    CellColour m_cellColour;
    CellOpen m_cellOpen; ///< none: each does
};
