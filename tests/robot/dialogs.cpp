#include "tests/robot/dialogs.h"

#include "tests/robot/keyboard.h"
#include "tests/robot/robot.h"
#include "tests/robot/shown.h"
#include "toolkit/ui/input_dialog.h"
#include "toolkit/ui/message_dialog.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QtTest/qtestkeyboard.h>

DialogAnswers::DialogAnswers() {
    qApp->installEventFilter(this);
}

bool DialogAnswers::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show)
        return false;
    const auto later = [this](auto* window, auto action) {
        ++m_answering;
        QMetaObject::invokeMethod(
            this,
            [this, window = QPointer(window), action] {
                --m_answering;
                if (window)
                    (this->*action)(window);
            },
            Qt::QueuedConnection);
    };
    if (auto* message = qobject_cast<MessageWindow*>(watched))
        later(message, &DialogAnswers::answer);
    else if (auto* input = qobject_cast<InputWindow*>(watched))
        later(input, &DialogAnswers::enter);
    else if (auto* file = qobject_cast<QFileDialog*>(watched))
        later(file, &DialogAnswers::choose);
    return false;
}

void DialogAnswers::answer(MessageWindow* window) {
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

void DialogAnswers::enter(InputWindow* window) {
    const QString subject =
        QStringLiteral("input %1 %2").arg(quoted(window->windowTitle()), quoted(window->edit()->text()));
    if (m_inputs.isEmpty()) {
        Q_EMIT failed(QStringLiteral("no text queued for: %1").arg(subject));
        return;
    }
    const QString text = m_inputs.dequeue();
    if (text == QLatin1String("!")) {
        Robot::print(subject + QStringLiteral(" -> !"));
        QTest::keyClick(window, Qt::Key_Escape);
        return;
    }
    Robot::print(subject + QStringLiteral(" -> ") + quoted(text));
    typeText(window->edit(), text);
    QTest::keyClick(window->edit(), Qt::Key_Return);
}

void DialogAnswers::choose(QFileDialog* dialog) {
    if (m_files.isEmpty()) {
        Q_EMIT failed(QStringLiteral("no path queued for: %1").arg(dialog->windowTitle()));
        return;
    }
    const QString path = m_files.dequeue();
    if (path == QLatin1String("!")) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        return;
    }
    auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    typeText(edit, path);
    QTest::keyClick(edit, Qt::Key_Return);
}
