#include "frame/base/audit.h"

#include "toolkit/text/sql_text.h"

namespace frame {

void AuditLog::WriteUserLog(const QString& login_id, const QString& note, int module, const QDateTime& moment) {
    m_statement = QStringLiteral("INSERT INTO user_log (login_id, log_date, module, log_note) VALUES (") +
                  EscapeSqlText(login_id) + moment.toString(QStringLiteral(", ''yyyy-MM-dd HH:mm'', ")) +
                  QString::number(module) + QStringLiteral(", ") + EscapeSqlText(note) + QStringLiteral(") ");
    m_session.ADOCom_update.execute(m_statement);
}

} // namespace frame
