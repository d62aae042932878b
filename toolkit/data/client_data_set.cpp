#include "toolkit/data/client_data_set.h"

#include "toolkit/db/transaction.h"

#include <algorithm>
#include <set>
#include <span>
#include <utility>

namespace data {

namespace {

template <typename Row, typename Action>
void forEachChunk(const std::vector<Row>& rows, Action&& action) {
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
    if (m_changes.empty())
        return;
    db::inTransaction(m_provider.query->connection(), [this] { sendChanges(); });
    forgetChanges();
}

TableWriter ClientDataSet::writer() {
    requireOpen();
    settle();
    return {m_provider.table, fields(), m_provider.keys, m_provider.neverWritten};
}

void ClientDataSet::sendChanges() {
    const TableWriter writer = this->writer();
    sendDeletes(writer);
    const Parked parked = parkWantedKeys(writer);
    sendChangedRows(writer, parked);
    sendInserts(writer, changesOf(Kind::Insert));
}

void ClientDataSet::sendEverything() {
    sendInserts(writer(), allRows());
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
    RowIndex holders(writer.keyFields());
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

void ClientDataSet::sendDeletes(const TableWriter& writer) {
    forEachChunk(changesOf(Kind::Delete), [&](std::span<const RowId> rows) {
        std::vector<const Record*> records;
        for (const RowId row : rows)
            records.push_back(&m_changes.at(row).loaded);
        send(writer.deleteRows(records));
    });
}

ClientDataSet::Parked ClientDataSet::parkWantedKeys(const TableWriter& writer) {
    Parked parked;
    const size_t field = size_t(writer.keyFields().back());
    if (fields()[field].type != FieldType::Integer)
        return parked;
    // Rows that exchange keys would meet in the middle. Whoever stands in the way first steps aside to a negative
    // number, which no key of the tables has; from there the ordinary update fetches it.
    forEachChunk(rowsInTheWay(writer), [&](std::span<const RowId> rows) {
        std::vector<RowUpdate> updates;
        for (const RowId row : rows) {
            const Record& loaded = m_changes.at(row).loaded;
            Record& aside = parked.emplace(row, loaded).first->second;
            aside[field] = -1 - loaded[field].toLongLong();
            updates.push_back({.loaded = &loaded, .current = &aside});
        }
        send(writer.updateRows(updates, {int(field)}));
    });
    return parked;
}

void ClientDataSet::sendChangedRows(const TableWriter& writer, const Parked& parked) {
    std::map<std::vector<int>, std::vector<RowUpdate>> groups;
    for (const RowId row : changesOf(Kind::Update)) {
        const auto aside = parked.find(row);
        const Record& stored = aside == parked.end() ? m_changes.at(row).loaded : aside->second;
        const RowUpdate update{.loaded = &stored, .current = &record(row)};
        groups[writer.changedFields(update)].push_back(update);
    }
    for (const auto& [changed, updates] : groups)
        if (!changed.empty())
            forEachChunk(updates, [&](std::span<const RowUpdate> rows) { send(writer.updateRows(rows, changed)); });
}

void ClientDataSet::sendInserts(const TableWriter& writer, const std::vector<RowId>& rows) {
    std::vector<const Record*> records;
    records.reserve(rows.size());
    for (const RowId row : rows)
        records.push_back(&record(row));
    for (size_t from = 0; from < rows.size();) {
        const TableWriter::Insert insert = writer.insertRows(std::span(records).subspan(from));
        send(insert.sql);
        from += insert.rows;
    }
}

} // namespace data
