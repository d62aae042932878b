#pragma once

#include "base/services.h"

#include <QTimer>
#include <QWidget>

class DataLabel;
class QPushButton;

/// A child window of the frame: the home of one subsystem. It is created for its use, keeps the frame's own panels
/// covered while it is open, and frees itself when it is closed.
class Workspace : public QWidget {
    Q_OBJECT

public:
    Workspace(base::Services& services, QWidget* parent);

    /// What Enter presses while one of the search fields has the focus.
    void setDefaultButton(QPushButton* button) { m_defaultButton = button; }

Q_SIGNALS:
    /// Sent again and again while the workspace is open.
    void coversPanels();
    void closed();

protected:
    /// What the workspace does when it first appears; a fault is shown and closes it.
    virtual void FormActivate() {}
    /// What it does before it goes.
    virtual void FormClose() {}

    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    base::Services& m_services;

private:
    QTimer Timer1;
    QPushButton* m_defaultButton = nullptr;
    bool m_firstActivation = true;
};

/// The title bar of a workspace: its caption, and the button that closes it.
class WorkspaceTitle final : public QWidget {
    Q_OBJECT

public:
    explicit WorkspaceTitle(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] Workspace* workspace() const;

    DataLabel* m_caption;
};
