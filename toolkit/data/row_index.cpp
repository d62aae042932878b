#include "toolkit/data/row_index.h"

#include <QHash>

#include <algorithm>

namespace data {

namespace {

void mix(size_t& hash, size_t next) {
    hash = qHashMulti(hash, next);
}

} // namespace

bool RowIndex::agrees(const Record& record, std::span<const QVariant> values) const {
    for (size_t i = 0; i < m_fields.size(); ++i)
        if (record[size_t(m_fields[i])] != values[i])
            return false;
    return true;
}

bool RowIndex::isSameKey(const Record& a, const Record& b) const {
    return std::ranges::all_of(m_fields, [&](int field) { return a[size_t(field)] == b[size_t(field)]; });
}

void RowIndex::add(RowId row, const Record& record) {
    std::vector<RowId>& rows = m_rows[hashOf(record)];
    rows.insert(std::ranges::lower_bound(rows, row), row);
}

void RowIndex::remove(RowId row, const Record& record) {
    const auto bucket = m_rows.find(hashOf(record));
    std::vector<RowId>& rows = bucket->second;
    rows.erase(std::ranges::lower_bound(rows, row));
    if (rows.empty())
        m_rows.erase(bucket);
}

std::span<const RowId> RowIndex::candidates(std::span<const QVariant> values) const {
    size_t hash = 0;
    for (const QVariant& value : values)
        mix(hash, hashValue(value));
    const auto bucket = m_rows.find(hash);
    return bucket == m_rows.end() ? std::span<const RowId>() : std::span<const RowId>(bucket->second);
}

size_t RowIndex::hashOf(const Record& record) const {
    size_t hash = 0;
    for (const int field : m_fields)
        mix(hash, hashValue(record[size_t(field)]));
    return hash;
}

} // namespace data
