#pragma once

#include <QString>
#include <QWidget>

#include <vector>

/// Remembers in which order windows became active, so that the topmost form is known on every platform.
class FormOrder final {
public:
    /// To be told of every event of the program.
    void follow(QObject* watched, const QEvent* event);
    /// Open forms, topmost first. A form is a visible widget whose object name begins with "frm_"; one that lies
    /// inside the frame stands before the frame.
    [[nodiscard]] std::vector<QWidget*> openForms() const;

private:
    std::vector<QWidget*> m_windows; // oldest activation first
};

/// Finds a control by "form.control", or "control" on the topmost form, without regard to case; the form's own name
/// alone means the form. Throws CommandFault where there is none.
[[nodiscard]] QWidget* findControl(const FormOrder& forms, const QString& path);

/// The control, after making sure that a person could work on it now: visible, enabled, not behind a modal window.
[[nodiscard]] QWidget* findReachable(const FormOrder& forms, const QString& path);
