#include "toolkit/data/client_data_set.h"

#include <algorithm>
#include <span>
#include <utility>

namespace data {

ClientDataSet::ClientDataSet(Provider provider, QObject* parent) : DataSet(parent), m_provider(std::move(provider)) {}

Rows ClientDataSet::fetch() {
    Rows rows = m_provider.query->run();
    m_changes.clear();
    return rows;
}

void ClientDataSet::recordInserted(RowId row) {
    m_changes.emplace(row, Change{.kind = Kind::Insert, .loaded = {}});
}

void ClientDataSet::recordReplaced(RowId row, const Record& before) {
    m_changes.try_emplace(row, Change{.kind = Kind::Update, .loaded = before});
}

void ClientDataSet::recordRemoved(RowId row, const Record& last) {
    const auto [change, isFirst] = m_changes.try_emplace(row, Change{.kind = Kind::Delete, .loaded = last});
    if (change->second.kind == Kind::Insert)
        m_changes.erase(change);
    else
        change->second.kind = Kind::Delete;
}

void ClientDataSet::applyUpdates() {
    requireOpen();
    settle();
    const TableWriter writer(m_provider.table, fields(), m_provider.keys, m_provider.neverWritten);
    applyDeletes(writer);
    applyUpdatedRows(writer);
    applyInserts(writer);
}

std::vector<RowId> ClientDataSet::changesOf(Kind kind) const {
    std::vector<RowId> rows;
    for (const auto& [row, change] : m_changes)
        if (change.kind == kind)
            rows.push_back(row);
    return rows;
}

void ClientDataSet::applyDeletes(const TableWriter& writer) {
    const std::vector<RowId> rows = changesOf(Kind::Delete);
    for (size_t from = 0; from < rows.size(); from += TableWriter::rowsPerStatement) {
        const std::span chunk =
            std::span(rows).subspan(from, std::min(TableWriter::rowsPerStatement, rows.size() - from));
        std::vector<const Record*> records;
        for (const RowId row : chunk)
            records.push_back(&m_changes.at(row).loaded);
        send(writer.deleteRows(records));
        for (const RowId row : chunk)
            m_changes.erase(row);
    }
}

void ClientDataSet::applyUpdatedRows(const TableWriter& writer) {
    std::map<std::vector<int>, std::vector<RowId>> groups;
    for (const RowId row : changesOf(Kind::Update))
        groups[writer.changedFields({.loaded = &m_changes.at(row).loaded, .current = &record(row)})].push_back(row);
    for (const auto& [changed, rows] : groups) {
        for (size_t from = 0; from < rows.size(); from += TableWriter::rowsPerStatement) {
            const std::span chunk =
                std::span(rows).subspan(from, std::min(TableWriter::rowsPerStatement, rows.size() - from));
            std::vector<RowUpdate> updates;
            for (const RowId row : chunk)
                updates.push_back({.loaded = &m_changes.at(row).loaded, .current = &record(row)});
            if (!changed.empty())
                send(writer.updateRows(updates, changed));
            for (const RowId row : chunk)
                m_changes.erase(row);
        }
    }
}

void ClientDataSet::applyInserts(const TableWriter& writer) {
    const std::vector<RowId> rows = changesOf(Kind::Insert);
    std::vector<const Record*> records;
    for (const RowId row : rows)
        records.push_back(&record(row));
    for (size_t from = 0; from < rows.size();) {
        const TableWriter::Insert insert = writer.insertRows(std::span(records).subspan(from));
        send(insert.sql);
        for (const RowId row : std::span(rows).subspan(from, insert.rows))
            m_changes.erase(row);
        from += insert.rows;
    }
}

} // namespace data
