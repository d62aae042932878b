// What the generator makes a company of, without a server.
#include "tools/company/calendar.h"
#include "tools/company/loan_schedule.h"
#include "tools/company/texts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using company::LoanTerms;

TEST(Holidays, FollowTheSunTheMoonAndEaster) {
    const std::pair<int, const char*> cases[] = {
        // The fast ends twice in 2000, and Ascension falls on the first of June.
        {2000, "01-01 01-08 01-09 03-16 04-06 04-21 05-01 06-01 06-15 08-17 10-26 12-25 12-28 12-29"},
        {2024, "01-01 02-07 03-29 04-10 04-11 05-01 05-09 06-01 06-17 07-08 08-17 09-16 12-25"},
        {2025, "01-01 01-27 03-31 04-01 04-18 05-01 05-29 06-01 06-07 06-27 08-17 09-05 12-25"},
    };
    for (const auto& [year, holidays] : cases) {
        QStringList texts;
        for (const QDate date : company::publicHolidays(year))
            texts << date.toString(u"MM-dd");
        EXPECT_EQ(texts.join(u' ').toStdString(), holidays);
    }
}

TEST(Days, ReachOverTheTurnOfTheYearAndMarkPublicHolidays) {
    std::string text;
    for (const company::Day& day : company::daysBetween(QDate(2025, 12, 30), QDate(2026, 1, 2)))
        text += day.literal.toStdString() + (day.publicHoliday ? "* " : " ");
    EXPECT_EQ(text, "'2025-12-30' '2025-12-31' '2026-01-01'* '2026-01-02' ");
}

/// Regular principal and receivable; then date, balance, payment, principal, interest, balance of each instalment.
std::string rowsOf(const company::Schedule& schedule) {
    QStringList lines{u"%1 %2"_s.arg(schedule.principalEach).arg(schedule.receivable)};
    for (const company::Instalment& one : schedule.instalments) {
        lines << one.due.toString(Qt::ISODate);
        for (const auto amount : {one.balanceBefore, one.payment, one.principal, one.interest, one.balanceAfter})
            lines.back() += u' ' + QString::number(amount);
    }
    return lines.join(u'\n').toStdString();
}

TEST(LoanSchedule, CountsInRoundedAmounts) {
    const std::tuple<const char*, LoanTerms, const char*> cases[] = {
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
    for (const auto& [name, terms, expected] : cases)
        EXPECT_EQ(rowsOf(company::scheduleOf(terms)), expected) << name;
}

/// Rows parted by slashes, cells by bars; or what is wrong.
std::string read(const char* table) {
    try {
        std::string text;
        for (const QStringList& row : company::textRows(QString::fromUtf8(table), {u"a"_s, u"b"_s}))
            text += row.join(u'|').toStdString() + '/';
        return text;
    } catch (const std::exception& fault) {
        return fault.what();
    }
}

TEST(TableOfTexts, IsReadWholeOrRefusedWithItsLine) {
    EXPECT_EQ(read("a\tb\n1\tJam: 8\n2\té\n"), "1|Jam: 8/2|é/");
    EXPECT_EQ(read("b\ta\n1\t2\n"), "Table of texts, line 1: not the expected header");
    EXPECT_EQ(read("a\tb\n1\t2\n1\n"), "Table of texts, line 3: wrong number of columns");
    EXPECT_EQ(read("a\tb\n1\t2\t3\n"), "Table of texts, line 2: wrong number of columns");
    EXPECT_EQ(read("a\tb\n1\t\n"), "Table of texts, line 2: an empty cell");
}

} // namespace
