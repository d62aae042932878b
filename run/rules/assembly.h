#pragma once

#include "run/rules/lookups.h"
#include "run/rules/run.h"

#include <functional>
#include <optional>

namespace run {

struct ChosenComponent {
    int com_id = 0;
    int type = 0;
    int no_urut = 0;
};

/// One item of the list of employees; somebody in two groups stands in it twice.
struct EmployeeItem {
    int emp_id_auto = 0;
    bool ticked = false;
};

/// An employee who can be ticked, with the first chosen group that holds him.
struct Candidate {
    Employee employee;
    int grp_id = 0;
};

struct EmployeeChoice {
    std::vector<EmployeeItem> clb_emp_id;
    std::vector<Candidate> vir_emp;
};

enum class LoanTest { None, Period, Month };

/// What a run computes. Groups in the order of ticking; employees only where some were to be picked.
struct Selections {
    Window period;
    std::vector<int> groups;
    std::vector<ChosenComponent> components;
    std::optional<EmployeeChoice> employees;
    LoanTest loans = LoanTest::None;
    QDate loanMonth; ///< any day of the month
};

/// What the clerk is told after the lines are computed; neither case changes them.
enum class Notice { None, NoEmployees, MoreThan200Employees };

/// Told after each employee how many are done.
using EmployeeDone = std::function<void(int done)>;

/// Replaces the lines of the run by a computation of the selections. Rounding and totals are not part of it. Never
/// throws for a failed lookup or an impossible amount: each costs what stands inside the nearest guard.
[[nodiscard]] Notice proses(Run& run, const Selections& selections, Lookups& lookups, const EmployeeDone& done = {});

} // namespace run
