#include "base/leave_check.h"

#include "base/look_up.h"
#include "toolkit/ui/handler.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <utility>

namespace base {

LeaveCheck::LeaveCheck(Services& services, QLineEdit& edit, CountStatement statement, const MessageText& message) :
    QObject(&edit), m_services(services), m_edit(edit), m_statement(std::move(statement)), m_message(message) {
    connect(qApp, &QApplication::focusChanged, this, &LeaveCheck::left);
}

void LeaveCheck::left(QWidget* from, QWidget* to) {
    // A message, another program, or the screen as it closes takes the focus from a field that nobody has left.
    if (from != &m_edit || !to || !m_edit.isVisible() || to->window() != m_edit.window())
        return;
    runHandler(m_edit.window(), [this] {
        if (!isTaken())
            return;
        m_services.messages.error(m_edit.window(), m_message);
        m_edit.setFocus();
        swallowClick();
    });
}

bool LeaveCheck::isTaken() const {
    if (m_edit.text() == m_loaded)
        return false;
    const QString statement = m_statement(m_edit.text());
    return !statement.isEmpty() && countOf(m_services.session.ADOConn, statement) > 0;
}

// The focus moves before the press reaches the button under the mouse, which would save what was just refused.
void LeaveCheck::swallowClick() {
    qApp->installEventFilter(this);
    QTimer::singleShot(0, this, [this] { qApp->removeEventFilter(this); });
}

bool LeaveCheck::eventFilter(QObject* watched, QEvent* event) {
    const bool isClick = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    return (isClick && watched->isWidgetType()) || QObject::eventFilter(watched, event);
}

} // namespace base
