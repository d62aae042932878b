#include "toolkit/data/record_table.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace data {

namespace {

// Rows are named in the order of arrival, so a list of them is sorted.

void enter(std::vector<RowId>& rows, RowId row) {
    rows.insert(std::ranges::lower_bound(rows, row), row);
}

void leave(std::vector<RowId>& rows, RowId row) {
    rows.erase(std::ranges::lower_bound(rows, row));
}

} // namespace

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
    m_all.push_back(row);
    if (m_filter && isVisible(row))
        m_filtered.push_back(row);
    return row;
}

Record RecordTable::replace(RowId row, Record record) {
    const bool wasVisible = isVisible(row);
    Record before = std::exchange(m_records[row], std::move(record));
    for (RowIndex& index : m_indexes) {
        if (index.isSameKey(before, m_records[row]))
            continue;
        index.remove(row, before);
        index.add(row, m_records[row]);
    }
    if (wasVisible && !isVisible(row))
        leave(m_filtered, row);
    else if (!wasVisible && isVisible(row))
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
    const std::span<const RowId> rows = indexOver({field}).candidates(std::array{value});
    m_filtered.clear();
    std::ranges::copy_if(rows, std::back_inserter(m_filtered), [this](RowId row) { return isVisible(row); });
}

void RecordTable::clearFilter() {
    m_filter.reset();
    m_filtered.clear();
}

int RecordTable::positionOf(RowId row) const {
    const std::vector<RowId>& shown = rows();
    const auto place = std::ranges::lower_bound(shown, row);
    return place != shown.end() && *place == row ? int(place - shown.begin()) : -1;
}

std::optional<RowId> RecordTable::find(const std::vector<int>& fields, const std::vector<QVariant>& values) {
    std::vector<int> searched = fields;
    std::vector<QVariant> wanted = values;
    // Under a filter the index spans its field, too: the search then meets only records that show up.
    if (m_filter) {
        searched.push_back(m_filter->field);
        wanted.push_back(m_filter->value);
    }
    const RowIndex& index = indexOver(searched);
    for (const RowId row : index.candidates(wanted))
        if (index.agrees(m_records[row], wanted))
            return row;
    return std::nullopt;
}

bool RecordTable::isVisible(RowId row) const {
    return !m_filter || m_records[row][size_t(m_filter->field)] == m_filter->value;
}

const RowIndex& RecordTable::indexOver(const std::vector<int>& fields) {
    for (const RowIndex& index : m_indexes)
        if (index.isOver(fields))
            return index;
    RowIndex& fresh = m_indexes.emplace_back(fields);
    for (const RowId row : m_all)
        fresh.add(row, m_records[row]);
    return fresh;
}

} // namespace data
