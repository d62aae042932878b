#include "tests/robot/keyboard.h"

#include <QtTest/qtestkeyboard.h>

void typeText(QWidget* control, const QString& text) {
    QMetaObject::invokeMethod(control, "selectAll");
    if (text.isEmpty())
        QTest::keyClick(control, Qt::Key_Delete);
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, control, Qt::Key_unknown, QString(c), Qt::NoModifier);
}
