#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

#include <optional>

class QLineEdit;

/// Asks for one line of text.
class InputDialog final : public QObject {
    Q_OBJECT

public:
    InputDialog(QString caption, QString prompt, QObject* parent);

    void setCaption(const QString& caption) { m_caption = caption; }
    [[nodiscard]] const QString& caption() const { return m_caption; }
    [[nodiscard]] const QStringList& texts() const { return m_texts; }
    /// 0 the prompt, 1 OK, 2 Cancel.
    void setText(int index, const QString& caption);

    /// Shows the preset text for editing; gives what stands there at OK, nothing at Cancel.
    [[nodiscard]] std::optional<QString> execute(QWidget* owner, const QString& preset);

private:
    QString m_caption;
    QStringList m_texts; ///< prompt, OK, Cancel
};

/// The window that execute() puts on the screen; public so that whoever watches the screen can tell it from others.
class InputWindow final : public QDialog {
    Q_OBJECT

public:
    InputWindow(const QString& caption, const QStringList& texts, QWidget* owner);

    [[nodiscard]] QLineEdit* edit() const { return m_edit; }

private:
    QLineEdit* m_edit;
};
