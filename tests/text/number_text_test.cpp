#include "toolkit/text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(NormalizeDecimal, TrimsFillsInZeroAndTurnsCommasIntoPoints) {
    const std::pair<const char16_t*, const char16_t*> cases[] = {
        {u"", u"0"}, {u"   ", u"0"}, {u" 1,5 ", u"1.5"}, {u"1.500.000", u"1.500.000"}, {u"1,2,3", u"1.2.3"}};
    for (const auto& [given, expected] : cases)
        EXPECT_EQ(NormalizeDecimal(QString::fromUtf16(given)), QString::fromUtf16(expected));
}

TEST(GroupedInteger, GroupsRoundsTiesToEvenAndNeverShowsMinusZero) {
    const std::pair<double, const char16_t*> cases[] = {{0, u"0"},
                                                        {999, u"999"},
                                                        {1000, u"1.000"},
                                                        {-1000, u"-1.000"},
                                                        {-999, u"-999"},
                                                        {1500.5, u"1.500"},
                                                        {1501.5, u"1.502"},
                                                        {-0.4, u"0"},
                                                        {1234567890123.0, u"1.234.567.890.123"},
                                                        {std::nan(""), u"0"},
                                                        {INFINITY, u"0"}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(groupedInteger(value), QString::fromUtf16(expected)) << value;
}

TEST(GroupedTwoDecimals, KeepsTwoDecimalsBehindAComma) {
    const std::pair<double, const char16_t*> cases[] = {
        {2.5, u"2,50"},   {0, u"0,00"},           {-0.001, u"0,00"}, {1234.567, u"1.234,57"},
        {-0.5, u"-0,50"}, {1e6, u"1.000.000,00"}, {0.125, u"0,13"},  {-1234.5, u"-1.234,50"}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(groupedTwoDecimals(value), QString::fromUtf16(expected)) << value;
}

TEST(PlainNumber, ReadsBackAsTheSameDouble) {
    for (const double value : {0.1, 1.0 / 3, 1e21, -2.5e-7, 9007199254740993.0, 4880300.0})
        EXPECT_EQ(plainNumber(value).toDouble(), value);
    EXPECT_EQ(plainNumber(4880300), QStringLiteral("4880300"));
}
