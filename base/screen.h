#pragma once

#include "base/services.h"

#include <QDialog>

/// A modal screen. It is activated when it appears and each time a screen that it opened closes; message dialogs and
/// other programs do not count, so nobody loses a half-made entry to a warning or a telephone call.
class Screen : public QDialog {
    Q_OBJECT

public:
    Screen(base::Services& services, QWidget* parent);

protected:
    /// What the screen does when it is activated; a fault is shown, and where the screen has just appeared it closes.
    virtual void FormActivate() {}

    void showEvent(QShowEvent* event) override;
    /// Enter presses the default button or the one in focus; where there is neither it goes on to the next field.
    void keyPressEvent(QKeyEvent* event) override;
    /// Opens a child screen modally, then activates this one again.
    void openModal(Screen& child);

    base::Services& m_services;
};
