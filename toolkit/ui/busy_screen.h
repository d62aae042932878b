#pragma once

#include <QElapsedTimer>
#include <QObject>

class QProgressBar;

/// For as long as it lives the program is at work and takes no input: the wait cursor shows, clicks and keys are
/// thrown away, and after a second a panel of the screen shows how far the work is.
class BusyScreen final : public QObject {
    Q_OBJECT

public:
    /// The panel is one of the screen's own, hidden so far, with the bar inside it.
    BusyScreen(QWidget* panel, QProgressBar* bar);
    ~BusyScreen() override;

    /// of 0: nobody knows how much there is.
    void showProgress(int done, int of);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_panel;
    QProgressBar* m_bar;
    QElapsedTimer m_clock;
    qint64 m_lastShown = 0;
};
