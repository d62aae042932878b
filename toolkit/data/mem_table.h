#pragma once

#include "toolkit/data/data_set.h"

namespace data {

/// Declared fields, records in memory only. Closing drops the records.
class MemTable final : public DataSet {
    Q_OBJECT

public:
    explicit MemTable(std::vector<Field> fields, QObject* parent = nullptr);

protected:
    [[nodiscard]] Rows fetch() override;

private:
    std::vector<Field> m_declared;
};

} // namespace data
