#pragma once

#include "base/session.h"

namespace base {

/// The module number under which the payroll program writes to the suite's audit log.
inline constexpr int payrollModule = 7;

/// Writes to the suite's audit log.
class AuditLog final {
public:
    explicit AuditLog(Session& session) : m_session(session) {}

    /// One row, at once; the moment is kept to the minute, a note longer than its column is cut by the server.
    /// Throws db::Fault.
    void WriteUserLog(const QString& login_id, const QString& note, int module, const QDateTime& moment);

    /// The statement of the last row.
    [[nodiscard]] const QString& statement() const { return m_statement; }

private:
    Session& m_session;
    QString m_statement;
};

} // namespace base
