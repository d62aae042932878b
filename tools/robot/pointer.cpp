#include "tools/robot/pointer.h"

#include "tools/robot/script.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWindow>
#include <QtTest/qtestmouse.h>

using namespace Qt::StringLiterals;

namespace {

QPoint markOrMiddle(QWidget* control) {
    const bool isCheckBox = qobject_cast<QCheckBox*>(control);
    if (!isCheckBox && !qobject_cast<QRadioButton*>(control))
        return control->rect().center();
    QStyleOptionButton option;
    option.initFrom(control);
    const auto mark = isCheckBox ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator;
    return control->style()->subElementRect(mark, &option, control).center();
}

QPoint reachablePoint(QWidget* control, const QString& path) {
    QWidget* window = control->window();
    const QPoint point = control->mapTo(window, markOrMiddle(control));
    const QWidget* hit = window->childAt(point);
    if (hit != control && !control->isAncestorOf(hit) && control != window)
        throw CommandFault(u"%1 is covered or scrolled out of sight"_s.arg(path));
    return point;
}

/// The windowing system's own road: the toolkit finds the widget, checks modality and notices double clicks. It only
/// queues; with the test library's own click, which lets events run, a choice in a dropped tree sometimes got lost.
void sendClick(const QWidget* widget, QPoint point, int milliseconds, Qt::KeyboardModifiers modifiers = {}) {
    QWindow* window = widget->windowHandle();
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

void clickPoint(QWidget* widget, QPoint point, Qt::KeyboardModifiers modifiers) {
    QWidget* window = widget->window();
    sendClick(window, widget->mapTo(window, point), nextMoment(), modifiers);
}

void clickControl(QWidget* control, const QString& path) {
    clickPoint(control->window(), reachablePoint(control, path));
}

void doubleClickControl(QWidget* control, const QString& path) {
    const QPoint point = reachablePoint(control, path);
    const int moment = nextMoment();
    sendClick(control->window(), point, moment);
    sendClick(control->window(), point, moment + 80);
}
