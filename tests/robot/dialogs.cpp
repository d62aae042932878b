#include "tests/robot/dialogs.h"

#include "tests/robot/robot.h"
#include "tests/robot/shown.h"
#include "toolkit/ui/message_dialog.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>

DialogAnswers::DialogAnswers() {
    qApp->installEventFilter(this);
}

bool DialogAnswers::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show)
        return false;
    if (auto* window = qobject_cast<MessageWindow*>(watched)) {
        ++m_answering;
        QMetaObject::invokeMethod(
            this, [this, window = QPointer(window)] { answer(window); }, Qt::QueuedConnection);
    }
    return false;
}

void DialogAnswers::answer(MessageWindow* window) {
    --m_answering;
    if (!window)
        return;
    const bool queued = !m_answers.isEmpty();
    const Message& message = window->message();
    const QString subject = QStringLiteral("message %1 %2 %3")
                                .arg(message.form.isEmpty() ? QStringLiteral("-") : message.form,
                                     message.id.isEmpty() ? QStringLiteral("-") : message.id, quoted(message.text));
    if (!queued && window->kind() == MessageKind::Confirmation) {
        Q_EMIT failed(QStringLiteral("no answer queued for the question: %1").arg(subject));
        return;
    }
    const int result = queued ? m_answers.dequeue() : int(MessageOk);
    Robot::print(QStringLiteral("%1 -> %2").arg(subject).arg(result));
    if (!window->press(result))
        Q_EMIT failed(QStringLiteral("no button for answer %1: %2").arg(result).arg(subject));
}
