#include "run/form/form_run_view.h"

namespace run {

FormRunView::FormRunView(WorkingCopy& copy) :
    m_lines(copy.cds_d), m_rows(copy.cds_sd), m_type(m_rows.fieldIndex(u"type")),
    m_amount(m_rows.fieldIndex(u"subtot_payroll")), m_total(m_lines.fieldIndex(u"tot_payroll")) {}

void FormRunView::goTo(int line) const {
    if (m_lines.row() != line)
        m_lines.goToRow(line);
}

int FormRunView::lineCount() const {
    return m_lines.rowCount();
}

int FormRunView::rowCount(int line) const {
    goTo(line);
    return m_rows.rowCount();
}

RowAmount FormRunView::row(int line, int row) const {
    goTo(line);
    return {.type = data::integer32Of(m_rows.valueAt(row, m_type)),
            .subtot_payroll = data::realOf(m_rows.valueAt(row, m_amount))};
}

void FormRunView::setAmount(int line, int row, double subtot_payroll) {
    goTo(line);
    // An amount that is whole already needs no write, and writes none to the server.
    if (data::realOf(m_rows.valueAt(row, m_amount)) == subtot_payroll)
        return;
    m_rows.goToRow(row);
    m_rows.editValue(u"subtot_payroll", subtot_payroll);
    m_rows.post();
}

double FormRunView::tot_payroll(int line) const {
    return data::realOf(m_lines.valueAt(line, m_total));
}

void FormRunView::setTotal(int line, double tot_payroll) {
    if (this->tot_payroll(line) == tot_payroll)
        return;
    goTo(line);
    m_lines.editValue(u"tot_payroll", tot_payroll);
    m_lines.post();
}

void FormRunView::deleteRow(int line, int row) {
    goTo(line);
    m_rows.goToRow(row);
    m_rows.remove();
}

void FormRunView::deleteLine(int line) {
    goTo(line);
    m_lines.remove();
}

} // namespace run
