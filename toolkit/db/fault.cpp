#include "toolkit/db/fault.h"

#include <utility>

namespace db {

Fault::Fault(unsigned code, QString sqlState, const QString& message, QString statement) :
    std::runtime_error(message.toStdString()), m_code(code), m_sqlState(std::move(sqlState)),
    m_statement(std::move(statement)) {}

} // namespace db
