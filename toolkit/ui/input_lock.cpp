#include "toolkit/ui/input_lock.h"

#include "toolkit/ui/handler.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

InputLock* InputLock::s_newest = nullptr;

InputLock::InputLock(QWidget* panel) : m_panel(panel), m_older(std::exchange(s_newest, this)) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
}

InputLock::~InputLock() {
    // What was clicked and typed meanwhile stands in the queue; it has to go while it is still thrown away.
    letEventsRun();
    s_newest = m_older;
    qApp->removeEventFilter(this);
    QApplication::restoreOverrideCursor();
}

void InputLock::letEventsRun() {
    const HandlersWait postponed;
    QApplication::processEvents();
}

bool InputLock::isForPanel(const QObject* watched, const QEvent& event) const {
    if (!m_panel || !event.isPointerEvent())
        return false;
    if (watched->isWidgetType()) {
        const auto* widget = static_cast<const QWidget*>(watched);
        return widget == m_panel || m_panel->isAncestorOf(widget);
    }
    // A window hands the event on to the widget below the pointer.
    const auto* mouse = dynamic_cast<const QMouseEvent*>(&event);
    return mouse && watched == m_panel->window()->windowHandle() &&
           m_panel->rect().contains(m_panel->mapFromGlobal(mouse->globalPosition().toPoint()));
}

bool InputLock::eventFilter(QObject* watched, QEvent* event) {
    if (this != s_newest || isForPanel(watched, *event))
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            Q_EMIT escapePressed();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}
