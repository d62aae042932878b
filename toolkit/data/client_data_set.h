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

    /// Ends a pending edit, then sends deletes, updates, inserts, in this order and many rows at a time, in one
    /// transaction. An update writes only what differs from the loaded row; a row edited back sends nothing. Rows may
    /// exchange their keys. Throws what db::inTransaction throws. All is still pending then, and nothing is stored;
    /// only after db::CommitUnknownFault it may be.
    void applyUpdates();

    // The same for several copies in one transaction of the caller's: send each, commit, then tell each.
    /// Ends a pending edit and sends the changes, which stay pending. Throws db::Fault.
    void sendChanges();
    /// Ends a pending edit and inserts every record, changed or not: for rows that the server has no more.
    void sendEverything();
    /// What is pending was stored.
    void forgetChanges() { m_changes.clear(); }

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

    /// Rows that stand under another key than the one they were loaded with, as they stand now.
    using Parked = std::map<RowId, Record>;

    [[nodiscard]] TableWriter writer();
    [[nodiscard]] std::vector<RowId> changesOf(Kind kind) const;
    [[nodiscard]] std::vector<RowId> rowsInTheWay(const TableWriter& writer) const;
    void sendDeletes(const TableWriter& writer);
    [[nodiscard]] Parked parkWantedKeys(const TableWriter& writer);
    void sendChangedRows(const TableWriter& writer, const Parked& parked);
    void sendInserts(const TableWriter& writer, const std::vector<RowId>& rows);
    void send(const QString& sql) { m_provider.query->connection().execute(sql); }

    Provider m_provider;
    std::map<RowId, Change> m_changes;
};

} // namespace data
