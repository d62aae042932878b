#pragma once

#include "toolkit/db/connection.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace run {

/// A run as it stands in the tables: who changed it last and when, and sums over all its columns, lines and rows, which
/// tell two changes by one user within the minute apart.
struct StoredRun {
    QString lastupdate_user;
    QDateTime lastupdate_date;
    QString content;
};

/// None where the run has no header. Throws db::Fault.
[[nodiscard]] std::optional<StoredRun> readStoredRun(db::Connection& main, int process_id);
/// The same inside a transaction, to whose end nobody else can save or delete the header; waits for whoever does so
/// now.
[[nodiscard]] std::optional<StoredRun> lockStoredRun(db::Connection& main, int process_id);

/// Deletes what the tables hold under the number, lines and rows without a header included. Throws db::Fault.
void deleteStoredRun(db::Connection& main, int process_id);

/// The number behind the highest one, inside a transaction, to whose end nobody else can take it. Throws db::Fault.
[[nodiscard]] int lockNextProcessId(db::Connection& main);

} // namespace run
