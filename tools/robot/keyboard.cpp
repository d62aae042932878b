#include "tools/robot/keyboard.h"

#include "tools/robot/script.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QGuiApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QWindow>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestsystem.h>

using namespace Qt::StringLiterals;

void typeText(QWidget* control, const QString& text) {
    if (auto* date = qobject_cast<QDateTimeEdit*>(control))
        date->setSelectedSection(date->sectionAt(0));
    else if (auto* box = qobject_cast<QComboBox*>(control); box && box->isEditable())
        box->lineEdit()->selectAll();
    else
        QMetaObject::invokeMethod(control, "selectAll");
    if (text.isEmpty())
        QTest::keyClick(control, Qt::Key_Delete);
    // One key for a letter, also for one that takes two code units.
    for (const char32_t letter : text.toStdU32String())
        QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString::fromUcs4(&letter, 1), Qt::NoModifier);
}

void giveFocusBack(QWidget* control) {
    const QWindow* focused = QGuiApplication::focusWindow();
    if (focused && focused->isVisible())
        return;
    control->window()->activateWindow();
    (void)QTest::qWaitForWindowActive(control->window());
}

void pressKeys(QWidget* topmost, const QString& name) {
    const QKeySequence keys(name);
    if (topmost)
        giveFocusBack(topmost);
    QWindow* window = QGuiApplication::focusWindow();
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown || !window)
        throw CommandFault(u"cannot press %1"_s.arg(name));
    // The window's road, not the control's: only there do shortcuts act.
    QTest::keyClick(window, keys[0].key(), keys[0].keyboardModifiers());
    // A button that is pressed by its shortcut stays down for a tenth of a second before it acts.
    QTest::qWait(150);
}
