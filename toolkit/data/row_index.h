#pragma once

#include "toolkit/data/value.h"

#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace data {

/// Names a record for as long as its set is open; ascending in the order of arrival, never used again.
using RowId = quint32;

/// Finds records by the values of some fields. Holds row numbers only and keeps them ascending per value; the owner
/// tells it every change of a record.
class RowIndex final {
public:
    explicit RowIndex(std::vector<int> fields) : m_fields(std::move(fields)) {}

    [[nodiscard]] bool isOver(const std::vector<int>& fields) const { return m_fields == fields; }
    [[nodiscard]] bool agrees(const Record& record, std::span<const QVariant> values) const;
    [[nodiscard]] bool isSameKey(const Record& a, const Record& b) const;

    void add(RowId row, const Record& record);
    void remove(RowId row, const Record& record);

    /// Rows that may hold the values (one per field of the index): all that do, and by chance others.
    [[nodiscard]] std::span<const RowId> candidates(std::span<const QVariant> values) const;

private:
    [[nodiscard]] size_t hashOf(const Record& record) const;

    std::vector<int> m_fields;
    std::unordered_map<size_t, std::vector<RowId>> m_rows;
};

} // namespace data
