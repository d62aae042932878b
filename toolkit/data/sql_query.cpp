#include "toolkit/data/sql_query.h"

#include <utility>

namespace data {

namespace {

FieldType fieldType(db::ColumnType type) {
    switch (type) {
    case db::ColumnType::Integer:
        return FieldType::Integer;
    case db::ColumnType::Real:
        return FieldType::Real;
    case db::ColumnType::Date:
        return FieldType::Date;
    case db::ColumnType::Moment:
        return FieldType::Moment;
    case db::ColumnType::Text:
        break;
    }
    return FieldType::Text;
}

Field fieldOf(const db::Column& column) {
    return {.name = column.name, .type = fieldType(column.type), .bits = column.bits, .isUnsigned = column.isUnsigned};
}

QVariant valueOf(const db::Result& rows, int column) {
    if (rows.isNull(column))
        return {};
    switch (rows.columns()[size_t(column)].type) {
    case db::ColumnType::Integer:
        return rows.integer(column);
    case db::ColumnType::Real:
        return rows.real(column);
    case db::ColumnType::Text:
        return rows.text(column);
    case db::ColumnType::Date: {
        // The server's zero date is no date; it reads as NULL.
        const QDate date = rows.date(column);
        return date.isValid() ? QVariant(date) : QVariant();
    }
    case db::ColumnType::Moment: {
        const QDateTime moment = rows.moment(column);
        return moment.isValid() ? QVariant(moment) : QVariant();
    }
    }
    return {};
}

Record readRecord(const db::Result& rows) {
    Record record;
    record.reserve(rows.columns().size());
    for (size_t i = 0; i < rows.columns().size(); ++i)
        record.push_back(valueOf(rows, int(i)));
    return record;
}

} // namespace

SqlQuery::SqlQuery(db::Connection& connection, const QString& sql, QObject* parent) :
    DataSet(parent), m_connection(connection), m_sql(sql) {
    setReadOnly(true);
}

void SqlQuery::openSql(const QString& sql) {
    const QString before = std::exchange(m_sql, sql);
    try {
        reopen();
    } catch (const std::exception&) {
        m_sql = before;
        throw;
    }
}

void SqlQuery::setParameter(const QString& name, const QVariant& value) {
    m_parameters.insert(name.toLower(), value);
}

void SqlQuery::follow(const DataSet& master, const QStringList& names) {
    m_master = &master;
    m_followed = names;
}

QString SqlQuery::boundSql() const {
    db::Parameters values = m_parameters;
    for (const QString& name : m_followed)
        values.insert(name.toLower(), m_master->hasField(name) ? m_master->value(name) : QVariant());
    return db::bindParameters(m_sql, values);
}

Rows SqlQuery::run() const {
    db::Result rows = m_connection.query(boundSql());
    Rows content;
    for (const db::Column& column : rows.columns())
        content.fields.push_back(fieldOf(column));
    content.records.reserve(size_t(rows.rowCount()));
    while (rows.next())
        content.records.push_back(readRecord(rows));
    return content;
}

} // namespace data
