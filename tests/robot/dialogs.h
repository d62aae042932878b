#pragma once

#include <QObject>
#include <QQueue>
#include <QStringList>

class QFileDialog;

class InputWindow;
class MessageWindow;

/// Answers message, input and file dialogs as they appear, through their own buttons, and prints each.
class DialogAnswers final : public QObject {
    Q_OBJECT

public:
    DialogAnswers();

    void queueAnswer(int result) { m_answers.enqueue(result); }
    /// "!" cancels the dialog.
    void queueInput(const QString& text) { m_inputs.enqueue(text); }
    /// A path for the next open or save dialog; "!" cancels it.
    void queueFile(const QString& path) { m_files.enqueue(path); }
    /// True while a dialog that will be answered is on the screen.
    [[nodiscard]] bool isAnswering() const { return m_answering > 0; }

Q_SIGNALS:
    /// A question, an input or a file dialog came with nothing queued, or an answer that the dialog has no button for.
    void failed(const QString& why);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(MessageWindow* window);
    void enter(InputWindow* window);
    void choose(QFileDialog* dialog);

    QQueue<int> m_answers;
    QQueue<QString> m_inputs;
    QQueue<QString> m_files;
    int m_answering = 0;
};
