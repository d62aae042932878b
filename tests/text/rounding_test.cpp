#include "toolkit/text/money.h"

#include <gtest/gtest.h>

namespace {

/// What a computation gives, or "fault".
template <typename Compute>
std::string outcome(Compute&& compute) {
    try {
        return std::to_string(compute());
    } catch (const ArithmeticFault&) {
        return "fault";
    }
}

} // namespace

TEST(Rounding, GoesToTheNearestWholeNumberOnATieToTheEvenOneAndRefusesWhatDoesNotFit) {
    using Limits = std::numeric_limits<Extended>;
    const std::pair<Extended, const char*> cases[] = {{2.5L, "2"},
                                                      {3.5L, "4"},
                                                      {-2.5L, "-2"},
                                                      {-3.5L, "-4"},
                                                      {2.5000000000000001L, "3"},
                                                      {0x1p63L - 1, "9223372036854775807"},
                                                      {0x1p63L - 0.5L, "fault"},
                                                      {-0x1p63L, "-9223372036854775808"},
                                                      {-0x1p63L - 1.5L, "fault"},
                                                      {Limits::infinity(), "fault"},
                                                      {Limits::quiet_NaN(), "fault"}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(outcome([number = value] { return rounded64(number); }), expected) << double(value);
    EXPECT_EQ(outcome([] { return rounded32(2147483647.5L); }), "fault");
    EXPECT_EQ(outcome([] { return rounded32(2147483646.5L); }), "2147483646");
    EXPECT_EQ(outcome([] { return double(quotient(0, 0)); }), "fault");
}

TEST(Rounding, OfDecimalsLiftsATie) {
    const std::pair<double, double> cases[] = {{0.125, 0.13},   {0.375, 0.38},           {0.12489, 0.12},
                                               {0.12495, 0.13}, {-0.125, -0.12},         {7.5, 7.5},
                                               {0, 0},          {1e13 + 0.5, 1e13 + 0.5}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(bulat_desimal(value), expected) << value;
    EXPECT_EQ(outcome([] { return bulat_desimal(1e17); }), "fault");
}

TEST(Rounding, GoesUpToAMultipleAndLeavesWhatIsOne) {
    const std::tuple<qint32, qint32, qint32> cases[] = {{1001, 500, 1500},
                                                        {1500, 500, 1500},
                                                        {1, 1, 1},
                                                        {0, 100, 0},
                                                        {-1, 100, -1},
                                                        {1, -100, -100},
                                                        {2147483647, 100, -2147483596}};
    for (const auto& [value, unit, expected] : cases)
        EXPECT_EQ(bulat_ke_atas(value, unit), expected) << value;
    EXPECT_EQ(outcome([] { return double(bulat_ke_atas(5, 0)); }), "fault");
}

TEST(Wrapping, ComesBackFromTheOtherEnd) {
    EXPECT_EQ(wrapped32(2147483648), -2147483648LL);
    EXPECT_EQ(wrapped32(4294967297), 1);
    EXPECT_EQ(wrapped32(-2147483649), 2147483647);
    EXPECT_EQ(wrappedSum(2147483647, 1), -2147483648LL);
    EXPECT_EQ(wrappedDifference(-2147483648LL, 1), 2147483647);
}

TEST(Money, KeepsFourDecimalsAndShowsWholeRupiah) {
    const std::tuple<double, qint64, qint64, const char*> cases[] = {
        {1500.5, 15005000, 1500, "1.500"},
        {1501.5, 15015000, 1502, "1.502"},
        {1500.50004, 15005000, 1500, "1.500"},
        {1500.50006, 15005001, 1501, "1.501"},
        {-1500.5, -15005000, -1500, "-1.500"},
        {-0.3, -3000, 0, "0"},
        {1500000, 15000000000, 1500000, "1.500.000"},
        {922337203685477, 9223372036854770000, 922337203685477, "922.337.203.685.477"},
        // Ten-thousandths of a rupiah that plain double arithmetic would put on a tie and round down.
        {0.00025, 3, 0, "0"},
    };
    for (const auto& [rupiah, units, whole, text] : cases) {
        const Money money = moneyOfRupiah(rupiah);
        EXPECT_EQ(std::tuple(money.units, wholeRupiah(money), moneyText(money).toStdString()),
                  std::tuple(units, whole, std::string(text)))
            << rupiah;
    }
    EXPECT_EQ(outcome([] { return moneyOfRupiah(922337203685478).units; }), "fault");
}
