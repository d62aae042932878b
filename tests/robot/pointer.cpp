#include "tests/robot/pointer.h"

#include "tests/robot/script.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QWindow>
#include <QtTest/qtestmouse.h>

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
        throw CommandError(QStringLiteral("%1 is covered or scrolled out of sight").arg(path));
    return point;
}

} // namespace

// Through the window, the windowing system's own road: the toolkit finds the widget, checks modality and notices double
// clicks, for which two commands of a script are never taken.

void clickPoint(QWidget* widget, QPoint point, Qt::KeyboardModifiers modifiers) {
    QWidget* window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, modifiers, widget->mapTo(window, point));
}

void clickControl(QWidget* control, const QString& path) {
    clickPoint(control->window(), reachablePoint(control, path));
}

void doubleClickControl(QWidget* control, const QString& path) {
    const QPoint point = reachablePoint(control, path);
    QTest::mouseDClick(control->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, point);
}
