#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

/// What a message dialog shows, and where the text comes from: the form and the key that address it in the tables.
struct Message {
    QString form;
    QString id;
    QString text;
};

enum class MessageKind { Confirmation, Error, Information };

/// The answers that the dialogs give; the numbers are the results told to the callers.
enum MessageResult { MessageOk = 1, MessageCancel = 2, MessageLanguage = 4 };

/// One of the program's three message dialogs. It lives as long as the frame and is shown again for every message.
/// Enter presses "OK"; Esc and the close button press "Cancel" where there is one, else "OK".
class MessageDialog final : public QObject {
    Q_OBJECT

public:
    MessageDialog(MessageKind kind, QObject* parent);

    /// Buttons from the left: a confirmation has OK, Cancel, Language, the others have OK, Language. A smaller count
    /// leaves the last ones out.
    void setButtonCount(int count);
    [[nodiscard]] int buttonCount() const { return m_buttonCount; }

    void setCaption(const QString& caption) { m_caption = caption; }
    [[nodiscard]] const QString& caption() const { return m_caption; }
    /// Captions of the buttons in their order.
    void setText(int index, const QString& caption);
    [[nodiscard]] const QStringList& texts() const { return m_texts; }

    /// Shows the message over the owner until it is answered; gives a MessageResult.
    int execute(QWidget* owner, const Message& message);

private:
    const MessageKind m_kind;
    int m_buttonCount;
    QString m_caption;
    QStringList m_texts;
};

/// The window that execute() puts on the screen; public so that whoever watches the screen can tell it from others.
class MessageWindow final : public QDialog {
    Q_OBJECT

public:
    MessageWindow(MessageKind kind, const Message& message, QWidget* owner);

    void addButton(const QString& caption, MessageResult result);
    [[nodiscard]] MessageKind kind() const { return m_kind; }
    [[nodiscard]] const Message& message() const { return m_message; }
    /// Presses the button that stands for the result, as a click would; false where the window has no such button.
    bool press(int result);

    void reject() override;

private:
    const MessageKind m_kind;
    const Message m_message;
    class QHBoxLayout* m_buttons;
};
