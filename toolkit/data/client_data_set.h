#pragma once

#include "toolkit/data/sql_query.h"
#include "toolkit/data/table_writer.h"

#include <map>
#include <span>

namespace data {

/// The link between a working copy and the server: where its rows come from and how they go back.
struct Provider {
    SqlQuery* query; ///< only its statement, parameters and connection are used; it need not be open
    QString table{}; ///< none for a copy that is never applied
    QStringList keys{};
    QStringList neverWritten{}; ///< fields that the statement adds for display
};

/// A working copy of a query's rows. Opening runs the statement afresh; changes stay here until applyUpdates().
class ClientDataSet final : public DataSet {
    Q_OBJECT

public:
    explicit ClientDataSet(Provider provider, QObject* parent = nullptr);

    /// Ends a pending edit, then sends deletes, updates, inserts, in this order and many rows at a time. An update
    /// writes only what differs from the loaded row; a row edited back sends nothing. Rows may exchange their keys.
    /// Stops at the first statement that fails by throwing db::Fault: what was applied by then is no longer pending,
    /// the rest still is.
    void applyUpdates();
    /// Changed rows that were not applied yet, rows edited back included.
    [[nodiscard]] size_t pendingChanges() const { return isOpen() ? m_changes.size() : 0; }

protected:
    [[nodiscard]] Rows fetch() override;
    void recordInserted(RowId row) override;
    void recordReplaced(RowId row, const Record& before) override;
    void recordRemoved(RowId row, const Record& last) override;

private:
    enum class Kind { Delete, Update, Insert };
    struct Change {
        Kind kind;
        Record loaded; ///< the row as the server has it; empty for an insert
    };

    [[nodiscard]] std::vector<RowId> changesOf(Kind kind) const;
    [[nodiscard]] std::vector<RowId> rowsInTheWay(const TableWriter& writer) const;
    void applyDeletes(const TableWriter& writer);
    void parkWantedKeys(const TableWriter& writer);
    void applyChangedRows(const TableWriter& writer);
    void updateRows(const TableWriter& writer, std::span<const RowId> rows, const std::vector<int>& changed);
    void applyInserts(const TableWriter& writer);
    void send(const QString& sql) { m_provider.query->connection().execute(sql); }

    Provider m_provider;
    std::map<RowId, Change> m_changes;
};

} // namespace data
