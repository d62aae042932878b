#include "toolkit/data/mem_table.h"

namespace data {

MemTable::MemTable(std::vector<Field> fields, QObject* parent) : DataSet(parent), m_declared(std::move(fields)) {}

Rows MemTable::fetch() {
    return {.fields = m_declared, .records = {}};
}

} // namespace data
