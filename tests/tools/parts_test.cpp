// What the generator makes a company of, without a server.
#include "tools/company/calendar.h"
#include "tools/company/texts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

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
