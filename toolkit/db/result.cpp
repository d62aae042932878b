#include "toolkit/db/result.h"

#include "toolkit/db/fault.h"

#include <mysql.h>

#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace db {

namespace {

int integerBits(enum_field_types type) {
    switch (type) {
    case MYSQL_TYPE_TINY:
        return 8;
    case MYSQL_TYPE_SHORT:
    case MYSQL_TYPE_YEAR:
        return 16;
    case MYSQL_TYPE_INT24:
        return 24;
    case MYSQL_TYPE_LONG:
        return 32;
    case MYSQL_TYPE_LONGLONG:
        return 64;
    default:
        return 0;
    }
}

ColumnType columnType(enum_field_types type) {
    if (integerBits(type) > 0)
        return ColumnType::Integer;
    switch (type) {
    case MYSQL_TYPE_FLOAT:
    case MYSQL_TYPE_DOUBLE:
    case MYSQL_TYPE_DECIMAL:
    case MYSQL_TYPE_NEWDECIMAL:
        return ColumnType::Real;
    case MYSQL_TYPE_DATE:
    case MYSQL_TYPE_NEWDATE:
        return ColumnType::Date;
    case MYSQL_TYPE_DATETIME:
    case MYSQL_TYPE_TIMESTAMP:
        return ColumnType::Moment;
    default:
        return ColumnType::Text;
    }
}

Column describe(const MYSQL_FIELD& field) {
    return {.name = QString::fromUtf8(field.name, field.name_length),
            .type = columnType(field.type),
            .bits = integerBits(field.type),
            .isUnsigned = (field.flags & UNSIGNED_FLAG) != 0,
            .table = QString::fromUtf8(field.org_table, field.org_table_length)};
}

/// Leading number of a text, as the server itself reads texts where a number is wanted; 0 where there is none.
double leadingNumber(std::string_view bytes) {
    while (!bytes.empty() && bytes.front() == ' ')
        bytes.remove_prefix(1);
    if (!bytes.empty() && bytes.front() == '+')
        bytes.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), value);
    return error == std::errc{} ? value : 0;
}

} // namespace

void Result::Free::operator()(st_mysql_res* result) const {
    mysql_free_result(result);
}

Result::Result(st_mysql_res* result) : m_result(result) {
    const MYSQL_FIELD* fields = mysql_fetch_fields(result);
    for (unsigned i = 0; i < mysql_num_fields(result); ++i)
        m_columns.push_back(describe(fields[i]));
}

int Result::columnIndex(const QString& name) const {
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (m_columns[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return int(i);
    throw Fault(0, {}, u"Field '%1' not found"_s.arg(name), {});
}

qint64 Result::rowCount() const {
    return qint64(mysql_num_rows(m_result.get()));
}

bool Result::next() {
    m_row = mysql_fetch_row(m_result.get());
    m_lengths = m_row ? mysql_fetch_lengths(m_result.get()) : nullptr;
    return m_row != nullptr;
}

bool Result::isNull(int column) const {
    return !m_row || !m_row[column];
}

std::string_view Result::bytes(int column) const {
    return isNull(column) ? std::string_view{} : std::string_view(m_row[column], m_lengths[column]);
}

QString Result::text(int column) const {
    const std::string_view raw = bytes(column);
    return QString::fromUtf8(raw.data(), qsizetype(raw.size()));
}

qint64 Result::integer(int column) const {
    const std::string_view raw = bytes(column);
    qint64 whole = 0;
    const auto [end, error] = std::from_chars(raw.data(), raw.data() + raw.size(), whole);
    if (error == std::errc{} && end == raw.data() + raw.size())
        return whole;
    const double rounded = std::nearbyint(leadingNumber(raw));
    // 2^63 itself is the first double that a signed 64-bit integer does not hold.
    if (!(rounded >= -0x1p63 && rounded < 0x1p63))
        throw Fault(0, {}, u"Value of '%1' does not fit an integer"_s.arg(m_columns[std::size_t(column)].name), {});
    return qint64(rounded);
}

double Result::real(int column) const {
    return leadingNumber(bytes(column));
}

QDate Result::date(int column) const {
    return QDate::fromString(text(column).left(10), Qt::ISODate);
}

QDateTime Result::moment(int column) const {
    const QString raw = text(column);
    return QDateTime(date(column), raw.size() > 10 ? QTime::fromString(raw.mid(11, 8), Qt::ISODate) : QTime(0, 0));
}

} // namespace db
