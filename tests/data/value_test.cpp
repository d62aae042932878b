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

/// The value as stored, or "fault".
QString stored(const QVariant& value, const Field& field) {
    try {
        const QVariant kept = data::toField(value, field);
        return kept.isValid() ? data::textOf(kept) : u"NULL"_s;
    } catch (const data::Fault&) {
        return u"fault"_s;
    }
}

QString whole(const QVariant& value) {
    try {
        return QString::number(data::integerOf(value));
    } catch (const data::Fault&) {
        return u"fault"_s;
    }
}

} // namespace

TEST(Values, AreStoredInTheTypeOfTheirField) {
    struct Case {
        QVariant value;
        FieldType type;
        const char* stored;
    };
    const Case cases[] = {
        {7, FieldType::Integer, "7"},
        {u" 12 "_s, FieldType::Integer, "12"},
        {u" "_s, FieldType::Integer, "NULL"},
        {u"12a"_s, FieldType::Integer, "fault"},
        {1e19, FieldType::Integer, "fault"},
        {true, FieldType::Integer, "-1"},
        {day, FieldType::Integer, "fault"},
        {u"1500.5"_s, FieldType::Real, "1500.5"},
        {u"1,5"_s, FieldType::Real, "fault"},
        {u"nan"_s, FieldType::Real, "fault"},
        {0.1, FieldType::Text, "0.1"},
        {u""_s, FieldType::Text, ""},
        {QVariant(), FieldType::Text, "NULL"},
        {day, FieldType::Text, "2024-02-29"},
        {QDate(), FieldType::Text, "NULL"},
        {moment, FieldType::Date, "2024-02-29"},
        {u"2024-02-29"_s, FieldType::Date, "2024-02-29"},
        {u"2024-02-30"_s, FieldType::Date, "fault"},
        {QDate(), FieldType::Date, "NULL"},
        {5, FieldType::Date, "fault"},
        {day, FieldType::Moment, "2024-02-29 00:00:00"},
        {u"2024-02-29 13:05:09"_s, FieldType::Moment, "2024-02-29 13:05:09"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(stored(one.value, {.name = {}, .type = one.type}), QLatin1String(one.stored))
            << one.value.toString().toStdString() << " into type " << int(one.type);
    EXPECT_EQ(stored(u"panjang"_s, {.name = {}, .size = 4}), u"panj");
}

TEST(Values, ReadAsWholeNumbersToTheNearestEven) {
    const std::pair<QVariant, const char*> cases[] = {
        {1500.5, "1500"},
        {1501.5, "1502"},
        {-0.5, "0"},
        {-1.5, "-2"},
        {u"2.5"_s, "2"},
        {u""_s, "0"},
        {QVariant(), "0"},
        {u"9223372036854775807"_s, "9223372036854775807"},
        {0x1p63, "fault"},
        {-0x1p63, "-9223372036854775808"},
        {std::numeric_limits<double>::quiet_NaN(), "fault"},
        {u"x"_s, "fault"},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(whole(value), QLatin1String(expected)) << value.toString().toStdString();
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
