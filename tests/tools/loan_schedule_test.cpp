#include "tools/company/loan_schedule.h"

#include <gtest/gtest.h>

namespace {

using company::LoanTerms;

/// Regular principal and receivable; then date, balance, payment, principal, interest, balance of each instalment.
std::string rowsOf(const company::Schedule& schedule) {
    QStringList lines{QStringLiteral("%1 %2").arg(schedule.principalEach).arg(schedule.receivable)};
    for (const company::Instalment& one : schedule.instalments) {
        lines << one.due.toString(Qt::ISODate);
        for (const auto amount : {one.balanceBefore, one.payment, one.principal, one.interest, one.balanceAfter})
            lines.back() += u' ' + QString::number(amount);
    }
    return lines.join(u'\n').toStdString();
}

struct Case {
    const char* name;
    LoanTerms terms;
    const char* expected;
};

TEST(LoanSchedule, CountsInRoundedAmounts) {
    const Case cases[] = {
        {"flat, the due day clamped and back on the 31st",
         {LoanTerms::Flat, 1000000, 1.5, 3, 1000, QDate(2026, 1, 31)},
         "334000 1047000\n"
         "2026-01-31 1047000 349000 334000 15000 698000\n"
         "2026-02-28 698000 349000 334000 15000 349000\n"
         "2026-03-31 349000 349000 334000 15000 0"},
        {"sliding, the last row takes the rest",
         {LoanTerms::Sliding, 1000000, 1.5, 3, 1000, QDate(2026, 1, 15)},
         "334000 1030000\n"
         "2026-01-15 1000000 349000 334000 15000 666000\n"
         "2026-02-15 666000 344000 334000 10000 332000\n"
         "2026-03-15 332000 337000 332000 5000 0"},
        {"no interest, the base rounded up first",
         {LoanTerms::Sliding, 999950, 0, 2, 100, QDate(2026, 1, 15)},
         "500000 1000000\n"
         "2026-01-15 1000000 500000 500000 0 500000\n"
         "2026-02-15 500000 500000 500000 0 0"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(rowsOf(company::scheduleOf(one.terms)), one.expected) << one.name;
}

} // namespace
