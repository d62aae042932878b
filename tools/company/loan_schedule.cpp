#include "tools/company/loan_schedule.h"

#include <cmath>

namespace company {

namespace {

int rounded(long double value) {
    return int(std::nearbyint(value));
}

int roundedUp(long double value, int unit) {
    const int whole = rounded(value);
    const int rest = whole % unit;
    return rest > 0 ? whole - rest + unit : whole;
}

// The hundredth of a hundredth lifts a value that lies on a tie.
long double toHundredths(long double value) {
    return std::nearbyint(value * 100 + 0.01L) / 100;
}

// The balance runs over all that is owed; all instalments are alike.
Schedule flat(const LoanTerms& terms, int base) {
    const int unit = terms.roundTo;
    const long double percent = toHundredths(static_cast<long double>(terms.percentPerMonth) * terms.months);
    const int interest = roundedUp(base * percent / 100, unit);
    const int payment = roundedUp((static_cast<long double>(base) + interest) / terms.months, unit);
    Schedule schedule;
    schedule.principalEach = roundedUp(static_cast<long double>(base) / terms.months, unit);
    schedule.receivable = payment * terms.months;
    int balance = schedule.receivable;
    for (int i = 0; i < terms.months; ++i) {
        const int each = roundedUp(static_cast<long double>(interest) / terms.months, unit);
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
    schedule.principalEach = roundedUp(static_cast<long double>(base) / terms.months, unit);
    schedule.receivable = base;
    int balance = base;
    for (int i = 0; i < terms.months; ++i) {
        const int principal = std::min(schedule.principalEach, balance);
        const int interest = roundedUp(balance * static_cast<long double>(terms.percentPerMonth) / 100, unit);
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
