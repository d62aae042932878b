#include "toolkit/db/transaction.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace db {

Transaction::Transaction(Connection& connection) : m_connection(connection) {
    if (connection.m_inTransaction)
        throw std::logic_error("A transaction inside another one");
    connection.execute(u"START TRANSACTION"_s);
    connection.m_inTransaction = true;
}

Transaction::~Transaction() {
    if (!m_connection.m_inTransaction)
        return;
    try {
        if (m_connection.isOpen())
            m_connection.execute(u"ROLLBACK"_s);
    } catch (const Fault&) {
        // Without its session the server rolls back by itself.
        m_connection.close();
    }
    m_connection.m_inTransaction = false;
}

void Transaction::commit() {
    const bool canArrive = m_connection.isOpen();
    try {
        m_connection.execute(u"COMMIT"_s);
    } catch (const Fault& fault) {
        if (canArrive && fault.stopsWork())
            throw CommitUnknownFault(fault.what());
        throw;
    }
    m_connection.m_inTransaction = false;
}

void inTransaction(Connection& connection, const std::function<void()>& action) {
    constexpr int repeats = 3;
    for (int done = 0;; ++done) {
        try {
            Transaction transaction(connection);
            action();
            transaction.commit();
            return;
        } catch (const Fault& fault) {
            if (!fault.isConflict() || done == repeats)
                throw;
        }
    }
}

} // namespace db
