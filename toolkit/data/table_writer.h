#pragma once

#include "toolkit/data/value.h"

#include <QStringList>

#include <span>

namespace data {

/// One row that is there already: as the server has it, and as it shall be.
struct RowUpdate {
    const Record* loaded;
    const Record* current;
};

/// Words the statements that carry records of one table to the server, many rows at a time. Rows are found by the key
/// columns as loaded. A whole number that its column cannot hold throws db::Fault: a server that is not strict would
/// clip it.
class TableWriter final {
public:
    /// Rows of one delete or update; more make the server's planning dearer than the trips saved.
    static constexpr size_t rowsPerStatement = 300;

    /// Keys and neverWritten are field names; neverWritten are fields that only show something of other tables.
    TableWriter(const QString& table, const std::vector<Field>& fields, const QStringList& keys,
                const QStringList& neverWritten);

    /// Fields that are written and differ.
    [[nodiscard]] std::vector<int> changedFields(const RowUpdate& row) const;
    [[nodiscard]] const std::vector<int>& keyFields() const { return m_keys; }

    [[nodiscard]] std::vector<QVariant> keyOf(const Record& record) const;

    [[nodiscard]] QString deleteRows(std::span<const Record* const> rows) const;
    /// Sets the same fields in every row.
    [[nodiscard]] QString updateRows(std::span<const RowUpdate> rows, const std::vector<int>& changed) const;

    struct Insert {
        QString sql;
        size_t rows;
    };
    /// One statement over as many of the rows, from the front, as fit into a packet of the smallest usual server.
    [[nodiscard]] Insert insertRows(std::span<const Record* const> rows) const;

private:
    [[nodiscard]] QString literalOf(const Record& record, int field) const;
    [[nodiscard]] QString columnOf(int field) const;
    [[nodiscard]] QString keysButLast(const Record& record) const;

    QString m_table;
    const std::vector<Field>& m_fields;
    std::vector<int> m_keys;
    std::vector<int> m_written;
};

} // namespace data
