#include "tests/robot/pointer.h"

#include "tests/robot/script.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWindow>
#include <QtTest/qtestmouse.h>

namespace {

QPoint clickPoint(QWidget* control) {
    QStyleOptionButton option;
    option.initFrom(control);
    if (qobject_cast<QCheckBox*>(control))
        return control->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, control).center();
    if (qobject_cast<QRadioButton*>(control))
        return control->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, control).center();
    return control->rect().center();
}

QPoint reachablePoint(QWidget* control, const QString& path) {
    QWidget* window = control->window();
    const QPoint point = control->mapTo(window, clickPoint(control));
    const QWidget* hit = window->childAt(point);
    if (hit != control && !control->isAncestorOf(hit) && control != window)
        throw CommandError(QStringLiteral("%1 is covered or scrolled out of sight").arg(path));
    return point;
}

/// The windowing system's own road: the toolkit finds the widget, checks modality and notices double clicks.
void sendClick(QWindow* window, QPoint point, int milliseconds, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const auto send = [&](Qt::MouseButtons held, QEvent::Type type, int moment) {
        qt_handleMouseEvent(window, point, window->mapToGlobal(point), held, Qt::LeftButton, type, modifiers, moment);
    };
    send(Qt::LeftButton, QEvent::MouseButtonPress, milliseconds);
    send(Qt::NoButton, QEvent::MouseButtonRelease, milliseconds + 20);
}

/// Two commands of a script are never taken for one double click.
int nextMoment() {
    static int moment = 0;
    return moment += 10'000;
}

} // namespace

void clickControl(QWidget* control, const QString& path) {
    const QPoint point = reachablePoint(control, path);
    sendClick(control->window()->windowHandle(), point, nextMoment());
}

void clickPoint(QWidget* widget, QPoint point, Qt::KeyboardModifiers modifiers) {
    QWidget* window = widget->window();
    sendClick(window->windowHandle(), widget->mapTo(window, point), nextMoment(), modifiers);
}

void doubleClickControl(QWidget* control, const QString& path) {
    const QPoint point = reachablePoint(control, path);
    const int moment = nextMoment();
    sendClick(control->window()->windowHandle(), point, moment);
    sendClick(control->window()->windowHandle(), point, moment + 80);
}
