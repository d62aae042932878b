#pragma once

#include "base/services.h"

#include <functional>

class QLineEdit;

namespace base {

/// Tells when a field is left whose value another record has, and brings the focus back. A mouse click that left the
/// field then does nothing else. A value that is the loaded one asks nothing.
class LeaveCheck final : public QObject {
    Q_OBJECT

public:
    /// Gives the statement that counts the records with the text; an empty statement asks nothing.
    using CountStatement = std::function<QString(const QString& text)>;

    /// Edit and services outlive the check.
    LeaveCheck(Services& services, QLineEdit& edit, CountStatement statement, const MessageText& message);

    void setLoaded(const QString& text) { m_loaded = text; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void left(QWidget* from, QWidget* to);
    [[nodiscard]] bool isTaken() const;
    void swallowClick();

    Services& m_services;
    QLineEdit& m_edit;
    const CountStatement m_statement;
    const MessageText& m_message;
    QString m_loaded;
};

} // namespace base
