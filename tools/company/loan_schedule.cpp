#include "tools/company/loan_schedule.h"

#include "toolkit/text/rounding.h"

#include <algorithm>

namespace company {

namespace {

int roundedUp(Extended value, int unit) {
    const int whole = rounded32(value);
    const int rest = whole % unit;
    return rest > 0 ? whole - rest + unit : whole;
}

// The balance runs over all that is owed; all instalments are alike.
Schedule flat(const LoanTerms& terms, int base) {
    const int unit = terms.roundTo;
    const double percent = bulat_desimal(Extended(terms.percentPerMonth) * terms.months);
    const int interest = roundedUp(Extended(base) * percent / 100, unit);
    const int payment = roundedUp((Extended(base) + interest) / terms.months, unit);
    Schedule schedule;
    schedule.principalEach = roundedUp(Extended(base) / terms.months, unit);
    schedule.receivable = payment * terms.months;
    int balance = schedule.receivable;
    for (int i = 0; i < terms.months; ++i) {
        const int each = roundedUp(Extended(interest) / terms.months, unit);
        schedule.instalments.push_back(
            {terms.firstDue.addMonths(i), balance, payment, schedule.principalEach, each, balance - payment});
        balance -= payment;
    }
    return schedule;
}

// The balance runs over the principal; interest is taken on what is open.
Schedule sliding(const LoanTerms& terms, int base) {
    const int unit = terms.roundTo;
    Schedule schedule;
    schedule.principalEach = roundedUp(Extended(base) / terms.months, unit);
    schedule.receivable = base;
    int balance = base;
    for (int i = 0; i < terms.months; ++i) {
        const int principal = std::min(schedule.principalEach, balance);
        const int interest = roundedUp(balance * Extended(terms.percentPerMonth) / 100, unit);
        schedule.instalments.push_back(
            {terms.firstDue.addMonths(i), balance, principal + interest, principal, interest, balance - principal});
        balance -= principal;
        schedule.receivable += interest;
    }
    return schedule;
}

} // namespace

Schedule scheduleOf(const LoanTerms& terms) {
    const int base = roundedUp(terms.amount, terms.roundTo);
    return terms.interest == LoanTerms::Flat ? flat(terms, base) : sliding(terms, base);
}

} // namespace company
