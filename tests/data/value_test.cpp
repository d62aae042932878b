#include "toolkit/data/fault.h"
#include "toolkit/data/value.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace Qt::StringLiterals;
using data::Field;
using data::FieldType;

const QDate day(2024, 2, 29);
const QDateTime moment(day, QTime(13, 5, 9));

/// What an action gives, or "fault".
template <typename Action>
std::string outcome(Action&& action) {
    try {
        return action().toStdString();
    } catch (const data::Fault&) {
        return "fault";
    }
}

std::string stored(const QVariant& value, const Field& field) {
    return outcome([&] {
        const QVariant kept = data::toField(value, field);
        return kept.isValid() ? data::textOf(kept) : u"NULL"_s;
    });
}

} // namespace

TEST(Values, AreStoredInTheTypeOfTheirField) {
    using enum FieldType;
    const struct {
        FieldType type;
        std::vector<QVariant> values;
        const char* kept;
    } cases[] = {
        {Integer, {7, u" 12 "_s, u" "_s, u"12a"_s, 1e19, true, day}, "7, 12, NULL, fault, fault, -1, fault"},
        {Real, {u"1500.5"_s, u"1,5"_s, u"nan"_s}, "1500.5, fault, fault"},
        {Text, {0.1, u""_s, {}, day, QDate(), u"dua belas  panjang"_s}, "0.1, , NULL, 2024-02-29, NULL, dua belas "},
        {Date, {moment, u"2024-02-29"_s, u"2024-02-30"_s, QDate(), 5}, "2024-02-29, 2024-02-29, fault, NULL, fault"},
        {Moment, {day, u"2024-02-29 13:05:09"_s}, "2024-02-29 00:00:00, 2024-02-29 13:05:09"},
    };
    for (const auto& [type, values, kept] : cases) {
        QStringList all;
        for (const QVariant& value : values)
            all << QString::fromStdString(stored(value, {.name = {}, .type = type, .size = type == Text ? 10 : 0}));
        EXPECT_EQ(all.join(u", "_s).toStdString(), kept);
    }
}

TEST(Values, ReadAsWholeNumbersToTheNearestEven) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::pair<QVariant, const char*> cases[] = {
        {1500.5, "1500"},  {1501.5, "1502"},
        {-0.5, "0"},       {-1.5, "-2"},
        {u"2.5"_s, "2"},   {u""_s, "0"},
        {{}, "0"},         {u"9223372036854775807"_s, "9223372036854775807"},
        {0x1p63, "fault"}, {-0x1p63, "-9223372036854775808"},
        {nan, "fault"},    {u"x"_s, "fault"},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(outcome([&, &given = value] { return QString::number(data::integerOf(given)); }), expected)
            << value.toString().toStdString();
    EXPECT_EQ(data::integer32Of(2147483647.5 - 0.5), 2147483647);
    EXPECT_THROW((void)data::integer32Of(qint64(2147483648)), data::Fault);
    EXPECT_THROW((void)data::integer32Of(-2147483649.0), data::Fault);
}

TEST(Values, FitTheWidthOfTheirColumn) {
    const struct {
        Field field;
        qint64 lowest;
        qint64 highest;
    } cases[] = {
        {{.name = {}, .bits = 8, .isUnsigned = false}, -128, 127},
        {{.name = {}, .bits = 16, .isUnsigned = false}, -32768, 32767},
        {{.name = {}, .bits = 16, .isUnsigned = true}, 0, 65535},
        {{.name = {}, .bits = 24, .isUnsigned = false}, -8388608, 8388607},
        {{.name = {}, .bits = 32, .isUnsigned = true}, 0, 4294967295},
    };
    for (const auto& [field, lowest, highest] : cases) {
        EXPECT_TRUE(data::fitsWidth(lowest, field) && data::fitsWidth(highest, field)) << highest;
        EXPECT_FALSE(data::fitsWidth(lowest - 1, field) || data::fitsWidth(highest + 1, field)) << highest;
    }
}
