#include "toolkit/text/number_text.h"

#include <QStringList>

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
        const char16_t* upToTwo;
    } cases[] = {{0, u"0", u"0,00", u"0"},
                 {999, u"999", u"999,00", u"999"},
                 {-1000, u"-1.000", u"-1.000,00", u"-1.000"},
                 {1500.5, u"1.500", u"1.500,50", u"1.500,5"},
                 {1501.5, u"1.502", u"1.501,50", u"1.501,5"},
                 {-0.4, u"0", u"-0,40", u"-0,4"},
                 {-0.001, u"0", u"0,00", u"0"},
                 {0.125, u"0", u"0,13", u"0,13"},
                 {1234567890123.0, u"1.234.567.890.123", u"1.234.567.890.123,00", u"1.234.567.890.123"},
                 {std::nan(""), u"0", u"0,00", u"0"},
                 {INFINITY, u"0", u"0,00", u"0"}};
    for (const auto& c : cases) {
        EXPECT_EQ(groupedInteger(c.value), QString::fromUtf16(c.integer)) << c.value;
        EXPECT_EQ(groupedTwoDecimals(c.value), QString::fromUtf16(c.twoDecimals)) << c.value;
        EXPECT_EQ(groupedUpToTwoDecimals(c.value), QString::fromUtf16(c.upToTwo)) << c.value;
    }
}

TEST(PlainNumber, ReadsBackAsTheSameDoubleAndHasNoExponentThatCanBeAvoided) {
    QStringList texts;
    for (const double value : {0.0, 0.1, 1.0 / 3, 1e5, 5e6, -2.5e-7, 999999999999999.9, 1e15, 9007199254740993.0}) {
        texts << plainNumber(value);
        EXPECT_EQ(texts.last().toDouble(), value);
    }
    EXPECT_EQ(texts.join(u' ').toStdString(), "0 0.1 0.3333333333333333 100000 5000000 -0.00000025 999999999999999.9 "
                                              "1e+15 9007199254740992");
}
