#pragma once

#include <QObject>
#include <QString>

/// A text that a screen puts together with others while it runs, as a named object so that the language tables can
/// replace it like a caption.
class NamedText final : public QObject {
    Q_OBJECT

public:
    NamedText(QObject* form, QStringView name, QStringView text) : QObject(form), m_text(text.toString()) {
        setObjectName(name.toString());
    }

    [[nodiscard]] const QString& text() const { return m_text; }
    void setText(const QString& text) { m_text = text; }

private:
    QString m_text;
};
