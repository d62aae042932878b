#include "toolkit/data/client_data_set.h"

#include <algorithm>
#include <set>
#include <span>
#include <utility>

namespace data {

namespace {

template <typename Action>
void forEachChunk(const std::vector<RowId>& rows, Action&& action) {
    constexpr size_t step = TableWriter::rowsPerStatement;
    for (size_t from = 0; from < rows.size(); from += step)
        action(std::span(rows).subspan(from, std::min(step, rows.size() - from)));
}

} // namespace

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
    parkWantedKeys(writer);
    applyChangedRows(writer);
    applyInserts(writer);
}

std::vector<RowId> ClientDataSet::changesOf(Kind kind) const {
    std::vector<RowId> rows;
    for (const auto& [row, change] : m_changes)
        if (change.kind == kind)
            rows.push_back(row);
    return rows;
}

std::vector<RowId> ClientDataSet::rowsInTheWay(const TableWriter& writer) const {
    const std::vector<RowId> updates = changesOf(Kind::Update);
    RowIndex holders(writer.keyFields(), Qt::CaseSensitive);
    for (const RowId row : updates)
        holders.add(row, m_changes.at(row).loaded);
    std::set<RowId> inTheWay;
    for (const RowId row : updates) {
        const std::vector<QVariant> wanted = writer.keyOf(record(row));
        for (const RowId holder : holders.candidates(wanted))
            if (holder != row && holders.agrees(m_changes.at(holder).loaded, wanted))
                inTheWay.insert(holder);
    }
    return {inTheWay.begin(), inTheWay.end()};
}

void ClientDataSet::applyDeletes(const TableWriter& writer) {
    forEachChunk(changesOf(Kind::Delete), [&](std::span<const RowId> rows) {
        std::vector<const Record*> records;
        for (const RowId row : rows)
            records.push_back(&m_changes.at(row).loaded);
        send(writer.deleteRows(records));
        for (const RowId row : rows)
            m_changes.erase(row);
    });
}

void ClientDataSet::parkWantedKeys(const TableWriter& writer) {
    const size_t field = size_t(writer.keyFields().back());
    if (fields()[field].type != FieldType::Integer)
        return;
    // Rows that exchange keys would meet in the middle. Whoever stands in the way first steps aside to a negative
    // number, which no key of the tables has; from there the ordinary update fetches it.
    forEachChunk(rowsInTheWay(writer), [&](std::span<const RowId> rows) {
        std::vector<Record> parked;
        std::vector<RowUpdate> updates;
        parked.reserve(rows.size());
        for (const RowId row : rows) {
            const Record& loaded = m_changes.at(row).loaded;
            parked.push_back(loaded);
            parked.back()[field] = -1 - loaded[field].toLongLong();
            updates.push_back({.loaded = &loaded, .current = &parked.back()});
        }
        send(writer.updateRows(updates, {int(field)}));
        for (size_t i = 0; i < rows.size(); ++i)
            m_changes.at(rows[i]).loaded = parked[i];
    });
}

void ClientDataSet::applyChangedRows(const TableWriter& writer) {
    std::map<std::vector<int>, std::vector<RowId>> groups;
    for (const RowId row : changesOf(Kind::Update))
        groups[writer.changedFields({.loaded = &m_changes.at(row).loaded, .current = &record(row)})].push_back(row);
    for (const auto& group : groups)
        forEachChunk(group.second, [&](std::span<const RowId> rows) { updateRows(writer, rows, group.first); });
}

void ClientDataSet::updateRows(const TableWriter& writer, std::span<const RowId> rows,
                               const std::vector<int>& changed) {
    std::vector<RowUpdate> updates;
    for (const RowId row : rows)
        updates.push_back({.loaded = &m_changes.at(row).loaded, .current = &record(row)});
    if (!changed.empty())
        send(writer.updateRows(updates, changed));
    for (const RowId row : rows)
        m_changes.erase(row);
}

void ClientDataSet::applyInserts(const TableWriter& writer) {
    const std::vector<RowId> rows = changesOf(Kind::Insert);
    std::vector<const Record*> records;
    records.reserve(rows.size());
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
