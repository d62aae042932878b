#pragma once

#include <QObject>
#include <QString>

#include <utility>

/// A text that a screen puts together with others while it runs, as a named object so that the language tables can
/// replace it like a caption.
class NamedText final : public QObject {
    Q_OBJECT

public:
    NamedText(QObject* form, const QString& name, QString text) : QObject(form), m_text(std::move(text)) {
        setObjectName(name);
    }

    [[nodiscard]] const QString& text() const { return m_text; }
    void setText(const QString& text) { m_text = text; }

private:
    QString m_text;
};
