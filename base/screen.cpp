#include "base/screen.h"

#include "base/activation.h"
#include "toolkit/ui/enter_key.h"
#include "toolkit/ui/handler.h"

#include <QScreen>
#include <QShowEvent>

#include <algorithm>

Screen::Screen(base::Services& services, QWidget* parent) : QDialog(parent), m_services(services) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
}

void Screen::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event) && pressFocusedButton(*this))
        return;
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    const bool hasDefault =
        std::any_of(buttons.begin(), buttons.end(), [](auto* button) { return button->isDefault(); });
    if (!isEnter(*event) || hasDefault)
        QDialog::keyPressEvent(event);
    else
        focusNextChild();
}

void Screen::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    resize(size().boundedTo(screen()->availableSize()));
    base::queueActivation(
        *this, [this] { FormActivate(); }, [this] { done(Rejected); });
}

void Screen::openModal(Screen& child) {
    child.exec();
    runHandler(this, [this] { FormActivate(); });
}
