#pragma once

#include "base/services.h"

#include <QWidget>

class CheckList;
class QLabel;

/// Employees to be ticked one by one, as a condition of a search.
class EmpCheckList final : public QWidget {
    Q_OBJECT

public:
    static constexpr int mostTicked = 200;

    explicit EmpCheckList(QWidget* parent = nullptr);

    /// All employees, none ticked. Throws db::Fault.
    void FillEmpCheckList(base::Session& session);
    /// " and emp_id_auto IN (...) " of the ticked ones. Selects nobody where none or more than 200 are ticked; says why
    /// where there are too many, or no employees at all.
    [[nodiscard]] QString BuildCriteriaFilter(base::Messages& messages);

private:
    CheckList* clb_emp;
    QLabel* lbl_jml;
};
