#pragma once

#include "toolkit/db/connection.h"

#include <functional>

namespace db {

/// The connection was lost while the server was committing: what the transaction did is stored whole or not at all,
/// and only a look at the tables tells which.
class CommitUnknownFault final : public fault::Fault {
public:
    using fault::Fault::Fault;
};

/// A transaction of a connection for as long as it lives; what commit() has not made lasting is rolled back. A session
/// that is lost inside takes all of it along: every further statement throws. One at a time on a connection.
class Transaction final {
public:
    /// Throws Fault, std::logic_error inside another transaction.
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Throws Fault where nothing was stored, CommitUnknownFault where that is not known.
    void commit();

private:
    Connection& m_connection;
};

/// Runs the action in a transaction and commits. Where another session was in the way, all of it is rolled back and
/// repeated, the action included, up to three times. Throws what the action and Transaction throw.
void inTransaction(Connection& connection, const std::function<void()>& action);

} // namespace db
