#include "toolkit/db/fault.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace db {

namespace {
constexpr int loggedLetters = 1000;
}

Fault::Fault(unsigned code, QString sqlState, const QString& message, QString statement) :
    fault::Fault(message.toStdString()), m_code(code), m_sqlState(std::move(sqlState)),
    m_statement(std::move(statement)) {}

QString Fault::details() const {
    return u"%1 %2 | %3"_s.arg(m_code).arg(m_sqlState, m_statement.left(loggedLetters));
}

bool Fault::isConnectionLoss() const {
    constexpr unsigned serverShutdown = 1053;
    constexpr unsigned connectionKilled = 1927;
    return m_whileOpening || isOfLibrary() || m_code == serverShutdown || m_code == connectionKilled;
}

bool Fault::stopsWork() const {
    return isConnectionLoss() || isInterrupted();
}

bool Fault::isConflict() const {
    constexpr unsigned lockWaitTimeout = 1205;
    constexpr unsigned deadlock = 1213; // also what a cluster answers that cannot certify the transaction
    return m_code == lockWaitTimeout || m_code == deadlock;
}

Fault Fault::whileOpening() const {
    Fault fault = *this;
    fault.m_whileOpening = true;
    return fault;
}

} // namespace db
