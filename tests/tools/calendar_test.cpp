#include "tools/company/calendar.h"

#include <gtest/gtest.h>

namespace {

std::string holidaysOf(int year) {
    QStringList texts;
    for (const QDate date : company::publicHolidays(year))
        texts << date.toString(u"MM-dd");
    return texts.join(u' ').toStdString();
}

TEST(Holidays, FollowTheSunTheMoonAndEaster) {
    EXPECT_EQ(holidaysOf(2024), "01-01 02-07 03-29 04-10 04-11 05-01 05-09 06-01 06-17 07-08 08-17 09-16 12-25");
    // The fast ends twice in 2000, and Ascension falls on the first of June.
    EXPECT_EQ(holidaysOf(2000), "01-01 01-08 01-09 03-16 04-06 04-21 05-01 06-01 06-15 08-17 10-26 12-25 12-28 12-29");
    EXPECT_EQ(holidaysOf(2025), "01-01 01-27 03-31 04-01 04-18 05-01 05-29 06-01 06-07 06-27 08-17 09-05 12-25");
}

TEST(Days, ReachOverTheTurnOfTheYearAndMarkPublicHolidays) {
    std::string text;
    for (const company::Day& day : company::daysBetween(QDate(2025, 12, 30), QDate(2026, 1, 2)))
        text += day.literal.toStdString() + (day.publicHoliday ? "* " : " ");
    EXPECT_EQ(text, "'2025-12-30' '2025-12-31' '2026-01-01'* '2026-01-02' ");
}

} // namespace
