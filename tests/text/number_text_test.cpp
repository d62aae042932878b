#include "toolkit/text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(NormalizeDecimal, TrimsFillsInZeroAndTurnsCommasIntoPoints) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"", u"0"}, {u"   ", u"0"}, {u" 1,5 ", u"1.5"}, {u"1.500.000", u"1.500.000"}, {u"1,2,3", u"1.2.3"}};
    for (const auto& [given, expected] : cases)
        EXPECT_EQ(NormalizeDecimal(QString::fromUtf16(given)), QString::fromUtf16(expected));
}

TEST(GroupedNumbers, RoundAndNeverShowMinusZero) {
    const struct {
        double value;
        const char16_t* integer;
        const char16_t* twoDecimals;
    } cases[] = {{0, u"0", u"0,00"},
                 {999, u"999", u"999,00"},
                 {-1000, u"-1.000", u"-1.000,00"},
                 {1500.5, u"1.500", u"1.500,50"},
                 {1501.5, u"1.502", u"1.501,50"},
                 {-0.4, u"0", u"-0,40"},
                 {-0.001, u"0", u"0,00"},
                 {0.125, u"0", u"0,13"},
                 {1234567890123.0, u"1.234.567.890.123", u"1.234.567.890.123,00"},
                 {std::nan(""), u"0", u"0,00"},
                 {INFINITY, u"0", u"0,00"}};
    for (const auto& c : cases) {
        EXPECT_EQ(groupedInteger(c.value), QString::fromUtf16(c.integer)) << c.value;
        EXPECT_EQ(groupedTwoDecimals(c.value), QString::fromUtf16(c.twoDecimals)) << c.value;
    }
}

TEST(PlainNumber, ReadsBackAsTheSameDouble) {
    for (const double value : {0.1, 1.0 / 3, 1e21, -2.5e-7, 9007199254740993.0, 4880300.0})
        EXPECT_EQ(plainNumber(value).toDouble(), value);
    EXPECT_EQ(plainNumber(4880300), QStringLiteral("4880300"));
}
