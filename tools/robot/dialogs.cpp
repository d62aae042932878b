#include "tools/robot/dialogs.h"

#include "toolkit/ui/input_dialog.h"
#include "toolkit/ui/message_dialog.h"
#include "tools/robot/keyboard.h"
#include "tools/robot/robot.h"
#include "tools/robot/shown.h"

#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QtTest/qtestkeyboard.h>

using namespace Qt::StringLiterals;

namespace {

const QString cancel = u"!"_s;

void finish(QWidget* dialog, QLineEdit* edit, const QString& text) {
    if (text == cancel) {
        QTest::keyClick(dialog, Qt::Key_Escape);
        return;
    }
    typeText(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace

void DialogAnswers::follow(QObject* watched, const QEvent* event) {
    if (event->type() != QEvent::Show)
        return;
    const auto later = [this](auto* window, auto action) {
        ++m_answering;
        const auto answering = [this, window = QPointer(window), action] {
            --m_answering;
            if (window)
                (this->*action)(window);
        };
        QMetaObject::invokeMethod(&m_robot, answering, Qt::QueuedConnection);
    };
    if (auto* message = qobject_cast<MessageWindow*>(watched))
        later(message, &DialogAnswers::answer);
    else if (auto* input = qobject_cast<InputWindow*>(watched))
        later(input, &DialogAnswers::enter);
    else if (auto* file = qobject_cast<QFileDialog*>(watched))
        later(file, &DialogAnswers::choose);
}

void DialogAnswers::answer(MessageWindow* window) {
    const auto orDash = [](const QString& name) { return name.isEmpty() ? u"-"_s : name; };
    const Message& message = window->message();
    const QString subject = u"message %1 %2 %3"_s.arg(orDash(message.form), orDash(message.id), quoted(message.text));
    if (m_answers.isEmpty() && window->kind() == MessageKind::Confirmation)
        m_robot.fail(u"no answer queued for the question: %1"_s.arg(subject));
    const int result = m_answers.isEmpty() ? int(MessageOk) : m_answers.dequeue();
    Robot::print(u"%1 -> %2"_s.arg(subject, result == escape ? cancel : QString::number(result)));
    if (result == escape)
        QTest::keyClick(window, Qt::Key_Escape);
    else if (!window->press(result))
        m_robot.fail(u"no button for answer %1: %2"_s.arg(result).arg(subject));
}

void DialogAnswers::enter(InputWindow* window) {
    const QString subject = u"input %1 %2"_s.arg(quoted(window->windowTitle()), quoted(window->edit()->text()));
    if (m_inputs.isEmpty())
        m_robot.fail(u"no text queued for: %1"_s.arg(subject));
    const QString text = m_inputs.dequeue();
    Robot::print(subject + u" -> "_s + (text == cancel ? text : quoted(text)));
    finish(window, window->edit(), text);
}

void DialogAnswers::choose(QFileDialog* dialog) {
    if (m_files.isEmpty())
        m_robot.fail(u"no path queued for: %1"_s.arg(dialog->windowTitle()));
    finish(dialog, dialog->findChild<QLineEdit*>(u"fileNameEdit"_s), m_files.dequeue());
}
