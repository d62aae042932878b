#include "toolkit/data/record_table.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace data {

void RecordTable::load(std::vector<Record> records) {
    *this = RecordTable();
    m_records.assign(std::make_move_iterator(records.begin()), std::make_move_iterator(records.end()));
    m_all.resize(m_records.size());
    std::iota(m_all.begin(), m_all.end(), RowId(0));
}

RowId RecordTable::append(Record record) {
    const RowId row = RowId(m_records.size());
    m_records.push_back(std::move(record));
    for (RowIndex& index : m_indexes)
        index.add(row, m_records[row]);
    enter(m_all, row);
    if (m_filter && isVisible(row))
        enter(m_filtered, row);
    return row;
}

Record RecordTable::replace(RowId row, Record record) {
    // The lists are searched by the record's own values, so it leaves them before and enters them after the change.
    leave(m_all, row);
    if (m_filter && isVisible(row))
        leave(m_filtered, row);
    Record before = std::exchange(m_records[row], std::move(record));
    for (RowIndex& index : m_indexes) {
        if (index.isSameKey(before, m_records[row]))
            continue;
        index.remove(row, before);
        index.add(row, m_records[row]);
    }
    enter(m_all, row);
    if (m_filter && isVisible(row))
        enter(m_filtered, row);
    return before;
}

Record RecordTable::remove(RowId row) {
    leave(m_all, row);
    if (m_filter && isVisible(row))
        leave(m_filtered, row);
    for (RowIndex& index : m_indexes)
        index.remove(row, m_records[row]);
    return std::exchange(m_records[row], {});
}

void RecordTable::setFilter(int field, const QVariant& value) {
    m_filter = Filter{.field = field, .value = value};
    const std::span<const RowId> rows = indexOver({field}, Qt::CaseSensitive).candidates(std::array{value});
    m_filtered.clear();
    std::ranges::copy_if(rows, std::back_inserter(m_filtered), [this](RowId row) { return isVisible(row); });
    if (!m_order.empty())
        std::ranges::sort(m_filtered, [this](RowId a, RowId b) { return isBefore(a, b); });
}

void RecordTable::clearFilter() {
    m_filter.reset();
    m_filtered.clear();
}

void RecordTable::setOrder(std::vector<int> fields) {
    m_order = std::move(fields);
    const auto before = [this](RowId a, RowId b) { return isBefore(a, b); };
    std::ranges::sort(m_all, before);
    std::ranges::sort(m_filtered, before);
}

int RecordTable::positionOf(RowId row) const {
    if (row >= m_records.size() || m_records[row].empty())
        return -1;
    const std::vector<RowId>& shown = rows();
    const auto place = std::ranges::lower_bound(shown, row, [this](RowId a, RowId b) { return isBefore(a, b); });
    return place != shown.end() && *place == row ? int(place - shown.begin()) : -1;
}

std::optional<RowId> RecordTable::find(const std::vector<int>& fields, const std::vector<QVariant>& values,
                                       Qt::CaseSensitivity sensitivity) {
    std::vector<int> searched = fields;
    std::vector<QVariant> wanted = values;
    // Under a filter the index spans its field, too: the search then meets only records that show up.
    if (m_filter) {
        searched.push_back(m_filter->field);
        wanted.push_back(m_filter->value);
    }
    const RowIndex& index = indexOver(searched, sensitivity);
    std::optional<RowId> first;
    for (const RowId row : index.candidates(wanted)) {
        if (!index.agrees(m_records[row], wanted) || !isVisible(row))
            continue;
        if (m_order.empty())
            return row;
        if (!first || isBefore(row, *first))
            first = row;
    }
    return first;
}

bool RecordTable::isVisible(RowId row) const {
    return !m_filter || compareValues(m_records[row][size_t(m_filter->field)], m_filter->value, Qt::CaseSensitive) == 0;
}

bool RecordTable::isBefore(RowId a, RowId b) const {
    for (const int field : m_order)
        if (const int side = compareValues(m_records[a][size_t(field)], m_records[b][size_t(field)], Qt::CaseSensitive))
            return side < 0;
    return a < b;
}

const RowIndex& RecordTable::indexOver(const std::vector<int>& fields, Qt::CaseSensitivity sensitivity) {
    for (const RowIndex& index : m_indexes)
        if (index.isOver(fields, sensitivity))
            return index;
    RowIndex& fresh = m_indexes.emplace_back(fields, sensitivity);
    for (RowId row = 0; row < m_records.size(); ++row)
        if (!m_records[row].empty())
            fresh.add(row, m_records[row]);
    return fresh;
}

void RecordTable::enter(std::vector<RowId>& rows, RowId row) const {
    rows.insert(std::ranges::lower_bound(rows, row, [this](RowId a, RowId b) { return isBefore(a, b); }), row);
}

void RecordTable::leave(std::vector<RowId>& rows, RowId row) const {
    rows.erase(std::ranges::lower_bound(rows, row, [this](RowId a, RowId b) { return isBefore(a, b); }));
}

} // namespace data
