#pragma once

#include "toolkit/data/row_index.h"

#include <deque>
#include <optional>

namespace data {

/// The records of one open data set: which exist and which the filter lets through, in the order of arrival. Finding by
/// fields is served by indexes that are built at the first search and kept up to date from then on.
class RecordTable final {
public:
    /// Replaces everything; the filter is forgotten.
    void load(std::vector<Record> records);

    RowId append(Record record);
    /// Gives the record as it was before.
    Record replace(RowId row, Record record);
    Record remove(RowId row);
    [[nodiscard]] const Record& record(RowId row) const { return m_records[row]; }

    /// Only records whose field holds exactly the value show up; the value has the field's own type.
    void setFilter(int field, const QVariant& value);
    void clearFilter();

    /// The records that show up.
    [[nodiscard]] const std::vector<RowId>& rows() const { return m_filter ? m_filtered : m_all; }
    /// Those that the filter hides, too.
    [[nodiscard]] const std::vector<RowId>& allRows() const { return m_all; }
    /// Place of the record among rows(); -1 where it does not show up.
    [[nodiscard]] int positionOf(RowId row) const;
    /// First record that shows up with the values in the fields.
    [[nodiscard]] std::optional<RowId> find(const std::vector<int>& fields, const std::vector<QVariant>& values);

private:
    struct Filter {
        int field;
        QVariant value;
    };

    [[nodiscard]] bool isVisible(RowId row) const;
    [[nodiscard]] const RowIndex& indexOver(const std::vector<int>& fields);

    std::deque<Record> m_records; ///< by row; what was removed stays as an empty record
    std::vector<RowId> m_all;
    std::vector<RowId> m_filtered;
    std::optional<Filter> m_filter;
    std::vector<RowIndex> m_indexes;
};

} // namespace data
