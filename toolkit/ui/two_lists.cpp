#include "toolkit/ui/two_lists.h"

#include "toolkit/ui/handler.h"

#include <QAbstractButton>

#include <numeric>

void TwoLists::bind(QWidget& screen, const MoveButtons& buttons) {
    const auto clicked = &QAbstractButton::clicked;
    onEvent(buttons.right, clicked, &screen, [this] { moveRight(Which::Selected); });
    onEvent(buttons.allRight, clicked, &screen, [this] { moveRight(Which::All); });
    onEvent(buttons.left, clicked, &screen, [this] { moveLeft(Which::Selected); });
    onEvent(buttons.allLeft, clicked, &screen, [this] { moveLeft(Which::All); });
}

TwoLists::Taken TwoLists::take(const DataGrid& grid, Which which) const {
    const data::DataSet& list = *grid.dataSet();
    std::vector<int> rows = grid.selectedRows();
    if (which == Which::All) {
        rows.resize(std::size_t(list.rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
    }
    Taken taken;
    for (const int row : rows) {
        QVariantList values;
        for (const QString& field : m_plan.fields)
            values << list.valueAt(row, list.fieldIndex(field));
        // A row that nobody has filled in yet moves nowhere.
        if (values.first().isValid())
            taken.push_back(values);
    }
    return taken;
}

void TwoLists::add(data::DataSet& list, const Taken& rows) const {
    const data::ViewsOff off(list);
    for (const QVariantList& values : rows) {
        if (list.rowOf({{m_plan.fields.first(), values.first()}}) >= 0)
            continue;
        list.append();
        for (qsizetype i = 0; i < values.size(); ++i)
            list.setValue(m_plan.fields[i], values[i]);
        list.post();
    }
}

void TwoLists::remove(data::DataSet& list, const Taken& rows) const {
    const data::ViewsOff off(list);
    for (const QVariantList& values : rows)
        if (list.locate({{m_plan.fields.first(), values.first()}}))
            list.remove();
}

void TwoLists::moveRight(Which which) {
    add(*m_plan.right->dataSet(), take(*m_plan.left, which));
    reconcile();
}

void TwoLists::moveLeft(Which which) {
    const Taken rows = take(*m_plan.right, which);
    add(*m_plan.left->dataSet(), rows);
    remove(*m_plan.right->dataSet(), rows);
    reconcile();
}

void TwoLists::reconcile() {
    if (m_plan.readLeft)
        m_plan.readLeft();
    remove(*m_plan.left->dataSet(), take(*m_plan.right, Which::All));
    FitGridColumns(*m_plan.left);
    FitGridColumns(*m_plan.right);
}
