#include "toolkit/db/fault.h"

#include <utility>

namespace db {

namespace {
constexpr int loggedLetters = 1000;
}

Fault::Fault(unsigned code, QString sqlState, const QString& message, QString statement) :
    fault::Fault(message.toStdString()), m_code(code), m_sqlState(std::move(sqlState)),
    m_statement(std::move(statement)) {}

QString Fault::details() const {
    return QStringLiteral("%1 %2 | %3").arg(m_code).arg(m_sqlState, m_statement.left(loggedLetters));
}

} // namespace db
