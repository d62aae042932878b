#include "frame/base/screen.h"

#include "toolkit/ui/handler.h"

#include <QShowEvent>

Screen::Screen(frame::Services& services, QWidget* parent) : QDialog(parent), m_services(services) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

void Screen::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        QMetaObject::invokeMethod(
            this, [this] { runHandler(this, [this] { FormActivate(); }); }, Qt::QueuedConnection);
}

void Screen::openModal(Screen& child) {
    child.exec();
    runHandler(this, [this] { FormActivate(); });
}
