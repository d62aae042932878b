#pragma once

#include "toolkit/ui/data_grid.h"

#include <functional>

class QAbstractButton;

/// The four buttons between two lists.
struct MoveButtons {
    QAbstractButton* right;
    QAbstractButton* allRight;
    QAbstractButton* left;
    QAbstractButton* allLeft;
};

/// Candidates at the left, the chosen at the right: rows move between the two in memory, and none stands on both sides.
class TwoLists final {
public:
    struct Plan {
        DataGrid* left;
        DataGrid* right;
        QStringList fields;               ///< that a row takes along; the first is its key
        std::function<void()> readLeft{}; ///< reads the candidates anew before each reconciling; none: they stay
    };
    enum class Which { Selected, All };

    explicit TwoLists(Plan plan) : m_plan(std::move(plan)) {}

    /// The lists must outlive the buttons' last click.
    void bind(QWidget& screen, const MoveButtons& buttons);
    void moveRight(Which which);
    void moveLeft(Which which);
    /// Takes from the left what stands at the right, disables a grid without rows and fits the columns of both.
    void reconcile();

private:
    using Taken = std::vector<QVariantList>;
    /// What the rows take along.
    [[nodiscard]] Taken take(const DataGrid& grid, Which which) const;
    /// Adds what the list has not.
    void add(data::DataSet& list, const Taken& rows) const;
    void remove(data::DataSet& list, const Taken& rows) const;

    const Plan m_plan;
};
