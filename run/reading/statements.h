#pragma once

#include "base/branch.h"
#include "run/reading/figure_statements.h"
#include "run/rules/assembly.h"
#include "toolkit/db/connection.h"

#include <QString>

#include <span>
#include <vector>

namespace run {

/// The selections, and whose employees the session may see.
struct SessionSelections : Selections {
    base::Branch session_cab_id;
};

// Statements of everything a run reads besides the attendance figures, and how to read their rows. Lists of numbers
// may be empty; they then match no row.

[[nodiscard]] QString numberList(std::span<const int> numbers);

/// Active employees of a group; in a session limited to a branch only those of the branch.
[[nodiscard]] QString membersStatement(int grp_id, const base::Branch& session_cab_id);
[[nodiscard]] std::vector<Employee> readEmployees(db::Result rows);

/// Rules of one component as one employee has them.
[[nodiscard]] QString rulesStatement(const RuleKey& key);
/// Rules of components in groups, whoever belongs to these; memberships, as far as the group exists.
[[nodiscard]] QString allRulesStatement(std::span<const int> groups, std::span<const int> components);
[[nodiscard]] QString membershipsStatement(std::span<const int> groups);
/// Reads the row on which the result stands.
[[nodiscard]] Rule readRule(const db::Result& row);

[[nodiscard]] QString moneyStatement(const RuleKey& key);
[[nodiscard]] QString allMoneyStatement(std::span<const int> groups, std::span<const int> components);

/// Components that rules may refer to.
[[nodiscard]] QString referenceStatement(int com_id);
[[nodiscard]] QString allReferencesStatement(std::span<const int> components);

/// Loan payments in the chosen period or month, of one employee or of all.
[[nodiscard]] QString loansStatement(const Selections& selections, int emp_id_auto);
[[nodiscard]] QString allLoansStatement(const Selections& selections);
[[nodiscard]] LoanPayment readLoanPayment(const db::Result& row);

[[nodiscard]] CountSettings readCountSettings(db::Connection& main);
[[nodiscard]] HolidayTimes readHolidayTimes(db::Connection& main, const Window& window);

/// The settings of full attendance, each read by itself; one that is missing or no number keeps its default. Throws
/// db::Fault where the connection is lost or a statement cancelled.
[[nodiscard]] Hadir100 readHadir100(db::Connection& app);

} // namespace run
