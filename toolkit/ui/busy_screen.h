#pragma once

#include "toolkit/ui/input_lock.h"

#include <QElapsedTimer>

class QProgressBar;

/// For as long as it lives the program is at work and takes no input; after a second a panel of the screen shows how
/// far the work is.
class BusyScreen final {
public:
    /// The panel is one of the screen's own, hidden so far, with the bar inside it.
    BusyScreen(QWidget* panel, QProgressBar* bar);
    ~BusyScreen();
    BusyScreen(const BusyScreen&) = delete;
    BusyScreen& operator=(const BusyScreen&) = delete;

    /// of 0: nobody knows how much there is.
    void showProgress(int done, int of);

private:
    QWidget* m_panel;
    QProgressBar* m_bar;
    QElapsedTimer m_clock;
    qint64 m_lastShown = 0;
    const InputLock m_lock;
};
