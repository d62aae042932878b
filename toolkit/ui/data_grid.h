#pragma once

#include "toolkit/ui/grid_model.h"

#include <QTableView>

#include <vector>

/// A grid over a data set: its current row is the set's current record, both ways.
class DataGrid final : public QTableView {
    Q_OBJECT

public:
    explicit DataGrid(QWidget* parent = nullptr);

    /// Said once, when the grid has its name, before or after the data set is given.
    void setColumns(const std::vector<ColumnPlan>& columns, const std::vector<BandPlan>& bands = {});
    void setDataSet(data::DataSet* set);
    [[nodiscard]] data::DataSet* dataSet() const { return m_model->dataSet(); }
    void setCellColour(CellColour rule) { m_model->setCellColour(std::move(rule)); }
    void setCellOpen(CellOpen rule) { m_model->setCellOpen(std::move(rule)); }
    /// Rows are selected as in a list of files; without it the current row alone is.
    void selectSeveralRows() { setSelectionMode(ExtendedSelection); }
    /// From the top.
    [[nodiscard]] std::vector<int> selectedRows() const;

    [[nodiscard]] const std::vector<GridColumn*>& columns() const { return m_model->columns(); }
    [[nodiscard]] const GridModel& rows() const { return *m_model; }
    /// Place of the column that shows the field; -1 where none does.
    [[nodiscard]] int columnOf(QStringView field) const;

Q_SIGNALS:
    /// The user moved to another row, or clicked the current one again.
    void rowChangedByUser();
    /// The user set or cleared the mark of a tick column in the current row; text is "-1" or "0". The record does not
    /// hold it yet.
    void toggled(const QString& field, const QString& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// A cell that is cut tells its whole text as tool tip.
    bool viewportEvent(QEvent* event) override;
    /// An open cell puts its record into the edit state, so that posting asks for what is typed.
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void followCursor();
    void toggle(int column);
    [[nodiscard]] int tickColumn() const;

    GridModel* m_model;
    std::vector<GridBand*> m_bands;
    bool m_following = false;
    int m_rowBeforePress = -1;
};

/// Widens each column to the widest of its caption and its display texts; disables a grid without records.
void FitGridColumns(DataGrid& grid);
