#pragma once

#include <QQueue>
#include <QStringList>

class QEvent;
class QFileDialog;
class QObject;

class InputWindow;
class MessageWindow;
class Robot;

/// Answers message, input and file dialogs as they appear, through their own buttons, and prints each. A question, an
/// input or a file dialog with nothing queued ends the run, and so does an answer that the dialog has no button for.
class DialogAnswers final {
public:
    explicit DialogAnswers(Robot& robot) : m_robot(robot) {}

    /// The answer that is given with the Esc key.
    static constexpr int escape = -1;
    void queueAnswer(int result) { m_answers.enqueue(result); }
    /// "!" cancels the dialog.
    void queueInput(const QString& text) { m_inputs.enqueue(text); }
    /// A path for the next open or save dialog; "!" cancels it.
    void queueFile(const QString& path) { m_files.enqueue(path); }
    /// True while a dialog that will be answered is on the screen.
    [[nodiscard]] bool isAnswering() const { return m_answering > 0; }
    /// To be told of every event of the program.
    void follow(QObject* watched, const QEvent* event);

private:
    void answer(MessageWindow* window);
    void enter(InputWindow* window);
    void choose(QFileDialog* dialog);

    Robot& m_robot;
    QQueue<int> m_answers;
    QQueue<QString> m_inputs;
    QQueue<QString> m_files;
    int m_answering = 0;
};
