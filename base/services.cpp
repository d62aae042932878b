#include "base/services.h"

using namespace Qt::StringLiterals;

namespace base {

void Services::log(const QWidget& screen, const QString& action, const QString& what) {
    const QString note = u"%1 - %2 [%3]"_s.arg(screen.windowTitle(), action, what);
    audit.WriteUserLog(session.login_id, note, payrollModule, session.clock());
}

} // namespace base
