#include "toolkit/ui/busy_screen.h"

#include <QApplication>
#include <QEvent>
#include <QProgressBar>

namespace {
constexpr qint64 quietMilliseconds = 1000;
constexpr qint64 betweenLooks = 80;
} // namespace

BusyScreen::BusyScreen(QWidget* panel, QProgressBar* bar) : m_panel(panel), m_bar(bar) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
    m_clock.start();
}

BusyScreen::~BusyScreen() {
    // What was clicked and typed meanwhile stands in the queue; it has to go while it is still thrown away.
    QApplication::processEvents();
    qApp->removeEventFilter(this);
    m_panel->hide();
    QApplication::restoreOverrideCursor();
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
    QApplication::processEvents();
}

bool BusyScreen::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}
