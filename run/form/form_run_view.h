#pragma once

#include "run/form/working_copy.h"
#include "run/rules/totals.h"

namespace run {

/// The working copies as the totals walk them. Moves the cursor of the lines; the rows follow.
class FormRunView final : public RunView {
public:
    explicit FormRunView(WorkingCopy& copy);

    [[nodiscard]] int lineCount() const override;
    [[nodiscard]] int rowCount(int line) const override;
    [[nodiscard]] RowAmount row(int line, int row) const override;
    void setAmount(int line, int row, double subtot_payroll) override;
    [[nodiscard]] double tot_payroll(int line) const override;
    void setTotal(int line, double tot_payroll) override;
    void deleteRow(int line, int row) override;
    void deleteLine(int line) override;

private:
    void goTo(int line) const;

    data::ClientDataSet& m_lines;
    data::ClientDataSet& m_rows;
    const int m_type;
    const int m_amount;
    const int m_total;
};

} // namespace run
