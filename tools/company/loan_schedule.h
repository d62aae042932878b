#pragma once

#include <QDate>

#include <vector>

namespace company {

/// Money is whole rupiah.
struct LoanTerms {
    enum Interest { Flat = 0, Sliding = 1 };
    Interest interest = Flat;
    int amount = 0;
    double percentPerMonth = 0;
    int months = 1;
    int roundTo = 1; ///< every amount of the schedule is a multiple of it
    QDate firstDue;
};

struct Instalment {
    QDate due;
    int balanceBefore = 0;
    int payment = 0;
    int principal = 0;
    int interest = 0;
    int balanceAfter = 0;
};

struct Schedule {
    std::vector<Instalment> instalments;
    int principalEach = 0; ///< the regular share of principal
    int receivable = 0;    ///< all that is owed over the term
};

[[nodiscard]] Schedule scheduleOf(const LoanTerms& terms);

} // namespace company
