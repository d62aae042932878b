#include "base/audit.h"

#include "toolkit/text/sql_text.h"

using namespace Qt::StringLiterals;

namespace base {

void AuditLog::WriteUserLog(const QString& login_id, const QString& note, int module, const QDateTime& moment) {
    m_statement = u"INSERT INTO user_log (login_id, log_date, module, log_note) VALUES ("_s + EscapeSqlText(login_id) +
                  moment.toString(u", ''yyyy-MM-dd HH:mm'', "_s) + QString::number(module) + u", "_s +
                  EscapeSqlText(note) + u") "_s;
    m_session.ADOCom_update.execute(m_statement);
}

} // namespace base
