#pragma once

#include "loans/schedule/schedule.h"
#include "tools/company/employees.h"

namespace company {

struct Loan {
    int id = 0;
    int type = 0; ///< krd_id
    int employee = 0;
    QDate granted;
    loans::LoanTerms terms;
    loans::Schedule schedule;
    int paid = 0; ///< the first so many instalments are paid, each on its due date

    [[nodiscard]] bool isPaidOff() const { return paid == int(schedule.rows.size()); }
};

/// Every fourth active employee has a loan, granted within the last thirteen months; instalments are paid up to the end
/// of the period, save that every seventh loan is one behind.
[[nodiscard]] std::vector<Loan> makeLoans(const std::vector<Employee>& employees, const Options& options);

void writeLoans(db::Connection& main, const std::vector<Loan>& loans);

} // namespace company
