#include "toolkit/ui/busy_screen.h"

#include <QProgressBar>

namespace {
constexpr qint64 quietMilliseconds = 1000;
constexpr qint64 betweenLooks = 80;
} // namespace

BusyScreen::BusyScreen(QWidget* panel, QProgressBar* bar) : m_panel(panel), m_bar(bar) {
    m_clock.start();
}

BusyScreen::~BusyScreen() {
    m_panel->hide();
}

void BusyScreen::showProgress(int done, int of) {
    const qint64 now = m_clock.elapsed();
    if (now < quietMilliseconds || now - m_lastShown < betweenLooks)
        return;
    m_lastShown = now;
    m_bar->setRange(0, of);
    m_bar->setValue(done);
    m_panel->show();
    m_panel->raise();
    InputLock::letEventsRun();
}
