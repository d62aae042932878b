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
    using Cases = std::vector<std::pair<QVariant, const char*>>;
    const std::pair<FieldType, Cases> types[] = {
        {FieldType::Integer,
         {{7, "7"},
          {u" 12 "_s, "12"},
          {u" "_s, "NULL"},
          {u"12a"_s, "fault"},
          {1e19, "fault"},
          {true, "-1"},
          {day, "fault"}}},
        {FieldType::Real, {{u"1500.5"_s, "1500.5"}, {u"1,5"_s, "fault"}, {u"nan"_s, "fault"}}},
        {FieldType::Text,
         {{0.1, "0.1"}, {u""_s, ""}, {{}, "NULL"}, {day, "2024-02-29"}, {QDate(), "NULL"}, {u"panjang"_s, "panj"}}},
        {FieldType::Date,
         {{moment, "2024-02-29"},
          {u"2024-02-29"_s, "2024-02-29"},
          {u"2024-02-30"_s, "fault"},
          {QDate(), "NULL"},
          {5, "fault"}}},
        {FieldType::Moment, {{day, "2024-02-29 00:00:00"}, {u"2024-02-29 13:05:09"_s, "2024-02-29 13:05:09"}}},
    };
    for (const auto& [type, cases] : types)
        for (const auto& [value, expected] : cases)
            EXPECT_EQ(stored(value, {.name = {}, .type = type, .size = value == u"panjang"_s ? 4 : 0}), expected)
                << value.toString().toStdString() << " into type " << int(type);
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
    struct Case {
        int bits;
        bool isUnsigned;
        qint64 lowest;
        qint64 highest;
    };
    const Case cases[] = {
        {8, false, -128, 127},          {16, false, -32768, 32767}, {16, true, 0, 65535},
        {24, false, -8388608, 8388607}, {32, true, 0, 4294967295},
    };
    for (const Case& one : cases) {
        const Field field{.name = {}, .type = FieldType::Integer, .bits = one.bits, .isUnsigned = one.isUnsigned};
        EXPECT_TRUE(data::fitsWidth(one.lowest, field) && data::fitsWidth(one.highest, field)) << one.bits;
        EXPECT_FALSE(data::fitsWidth(one.lowest - 1, field) || data::fitsWidth(one.highest + 1, field)) << one.bits;
    }
}
