#include "toolkit/text/rounding.h"

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
