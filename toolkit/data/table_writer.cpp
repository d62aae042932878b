#include "toolkit/data/table_writer.h"

#include "toolkit/data/fault.h"
#include "toolkit/db/fault.h"
#include "toolkit/db/parameters.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// A character takes at most three bytes on the wire, and the smallest usual limit of a server is 1 MB a statement.
constexpr qsizetype longestInsert = 300'000;

int indexOfField(const std::vector<Field>& fields, const QString& name) {
    for (size_t i = 0; i < fields.size(); ++i)
        if (fields[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return int(i);
    throw Fault(u"Key field '%1' not found"_s.arg(name));
}

QString quotedName(const QString& name) {
    return u'`' + QString(name).replace(u'`', u"``"_s) + u'`';
}

} // namespace

TableWriter::TableWriter(const QString& table, const std::vector<Field>& fields, const QStringList& keys,
                         const QStringList& neverWritten) :
    m_table(table),
    m_fields(fields) {
    for (const QString& key : keys)
        m_keys.push_back(indexOfField(fields, key));
    // Of two fields with one name the first is the table's own, as it is for reading.
    for (size_t i = 0; i < fields.size(); ++i)
        if (indexOfField(fields, fields[i].name) == int(i) &&
            !neverWritten.contains(fields[i].name, Qt::CaseInsensitive))
            m_written.push_back(int(i));
    if (m_table.isEmpty() || m_keys.empty())
        throw Fault(u"The data set has no table to write to"_s);
}

std::vector<int> TableWriter::changedFields(const RowUpdate& row) const {
    std::vector<int> changed;
    std::ranges::copy_if(m_written, std::back_inserter(changed),
                         [&row](int field) { return (*row.loaded)[size_t(field)] != (*row.current)[size_t(field)]; });
    return changed;
}

std::vector<QVariant> TableWriter::keyOf(const Record& record) const {
    std::vector<QVariant> key;
    for (const int field : m_keys)
        key.push_back(record[size_t(field)]);
    return key;
}

QString TableWriter::deleteRows(std::span<const Record* const> rows) const {
    QString sql = u"DELETE FROM %1 WHERE "_s.arg(quotedName(m_table));
    const QString last = columnOf(m_keys.back());
    std::optional<QString> open; // what the rows of the list that is being written share
    for (const Record* row : rows) {
        // Rows that share all keys but the last stand in one list, which the server reads as points of its index.
        const QString shared = keysButLast(*row);
        if (open == shared)
            sql += u',';
        else
            sql += (open ? u") OR "_s : QString()) + shared + last + u" IN ("_s;
        open = shared;
        sql += literalOf(*row, m_keys.back());
    }
    return sql + u')';
}

QString TableWriter::updateRows(std::span<const RowUpdate> rows, const std::vector<int>& changed) const {
    QString list;
    for (const RowUpdate& row : rows) {
        list += list.isEmpty() ? u"SELECT "_s : u" UNION ALL SELECT "_s;
        for (size_t i = 0; i < m_keys.size(); ++i)
            list += literalOf(*row.loaded, m_keys[i]) + u" AS k%1, "_s.arg(i);
        for (size_t i = 0; i < changed.size(); ++i)
            list += literalOf(*row.current, changed[i]) + u" AS c%1, "_s.arg(i);
        list.chop(2);
    }
    QStringList found;
    for (size_t i = 0; i < m_keys.size(); ++i)
        found << u"t.%1=n.k%2"_s.arg(columnOf(m_keys[i])).arg(i);
    QStringList set;
    for (size_t i = 0; i < changed.size(); ++i)
        set << u"t.%1=n.c%2"_s.arg(columnOf(changed[i])).arg(i);
    // The list of new values leads, so that each finds its row by the key and the table is never read through.
    return u"UPDATE ("_s + list + u") AS n STRAIGHT_JOIN "_s + quotedName(m_table) + u" AS t ON "_s +
           found.join(u" AND "_s) + u" SET "_s + set.join(u", "_s);
}

TableWriter::Insert TableWriter::insertRows(std::span<const Record* const> rows) const {
    QStringList columns;
    for (const int field : m_written)
        columns << columnOf(field);
    Insert insert{.sql = u"INSERT INTO %1 (%2) VALUES "_s.arg(quotedName(m_table), columns.join(u',')), .rows = 0};
    insert.sql.reserve(longestInsert + 1000);
    for (const Record* row : rows) {
        QString values = insert.rows == 0 ? u"("_s : u",("_s;
        for (const int field : m_written)
            // What nobody filled in is left to the column's default.
            values += ((*row)[size_t(field)].isValid() ? literalOf(*row, field) : u"DEFAULT"_s) + u',';
        values.back() = u')';
        if (insert.rows > 0 && insert.sql.size() + values.size() > longestInsert)
            break;
        insert.sql += values;
        ++insert.rows;
    }
    return insert;
}

QString TableWriter::literalOf(const Record& record, int field) const {
    const QVariant& value = record[size_t(field)];
    const Field& column = m_fields[size_t(field)];
    if (column.type == FieldType::Integer && value.isValid() && !fitsWidth(value.toLongLong(), column))
        throw db::Fault(
            0, {},
            u"%1 does not fit column '%2' of '%3', which has %4 bits"_s.arg(value.toString(), column.name, m_table)
                .arg(column.bits),
            {});
    return db::literal(value);
}

QString TableWriter::columnOf(int field) const {
    return quotedName(m_fields[size_t(field)].name);
}

QString TableWriter::keysButLast(const Record& record) const {
    QString shared;
    for (size_t i = 0; i + 1 < m_keys.size(); ++i)
        shared += columnOf(m_keys[i]) + u'=' + literalOf(record, m_keys[i]) + u" AND "_s;
    return shared;
}

} // namespace data
