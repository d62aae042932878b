#include "tools/robot/commands.h"

#include "toolkit/report/fr_preview.h"
#include "toolkit/ui/caption.h"
#include "tools/robot/keyboard.h"
#include "tools/robot/pointer.h"
#include "tools/robot/shown.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest/qtestkeyboard.h>
#include <QtTest/qtestmouse.h>
#include <QtTest/qtestsystem.h>

using namespace Qt::StringLiterals;

namespace {

int wholeNumber(const QString& word) {
    bool isNumber = false;
    const int number = word.toInt(&isNumber);
    if (!isNumber)
        throw CommandFault(u"%1 is no number"_s.arg(word));
    return number;
}

QWidget* focusOn(QWidget* control, const QString& path) {
    control->setFocus(Qt::MouseFocusReason);
    Robot::settle();
    if (isReadOnly(control))
        throw CommandFault(u"%1 is read-only"_s.arg(path));
    return control;
}

/// The calendar that a press on the arrow drops down. Sent, not queued: no other command may find it half chosen.
QCalendarWidget* dropCalendar(QDateTimeEdit* picker) {
    QStyleOptionComboBox option;
    option.initFrom(picker);
    option.editable = true;
    const QRect arrow = picker->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, picker);
    QTest::mousePress(picker, Qt::LeftButton, {}, arrow.center());
    QTest::mouseRelease(picker, Qt::LeftButton, {}, arrow.center());
    const QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup->findChild<QCalendarWidget*>() : nullptr;
}

/// Chosen as by a click on the day, after which the calendar closes.
void chooseDate(QDateTimeEdit* picker, const QString& path, const QDate& date) {
    if (!picker->calendarPopup()) {
        picker->setDate(date);
        return;
    }
    QCalendarWidget* calendar = dropCalendar(picker);
    if (!calendar || date < calendar->minimumDate() || date > calendar->maximumDate())
        throw CommandFault(u"%1 offers no day %2"_s.arg(path, date.toString(Qt::ISODate)));
    calendar->setSelectedDate(date);
    QTest::keyClick(calendar->focusProxy(), Qt::Key_Return);
    giveFocusBack(picker);
}

/// One click on an arrow after another until the number shows.
void stepTo(QSpinBox* box, const QString& path, int wanted) {
    const QPointer<QSpinBox> alive = box;
    while (alive && box->value() != wanted) {
        const bool up = box->value() < wanted;
        QStyleOptionSpinBox option;
        option.initFrom(box);
        const auto arrow = up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
        const int before = box->value();
        clickPoint(box, box->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, box).center());
        Robot::settle();
        const bool isNearer = alive && (up ? box->value() > before && box->value() <= wanted
                                           : box->value() < before && box->value() >= wanted);
        if (alive && !isNearer)
            throw CommandFault(u"%1 does not reach %2 by its arrows"_s.arg(path).arg(wanted));
    }
}

/// One word shorter than typing: the value arrives whole and is accepted as by the Enter key.
void setValue(QWidget* control, const QString& path, const QString& value) {
    if (auto* box = qobject_cast<QAbstractButton*>(control); box && box->isCheckable()) {
        if (box->isChecked() != (value == "-1"_L1))
            clickControl(control, path);
        return;
    }
    focusOn(control, path);
    const QDate date = QDate::fromString(value, Qt::ISODate);
    auto* dateEdit = qobject_cast<QDateTimeEdit*>(control);
    if (dateEdit && date.isValid())
        chooseDate(dateEdit, path, date);
    else if (qobject_cast<QLineEdit*>(control) || qobject_cast<QPlainTextEdit*>(control))
        typeText(control, value);
    else if (auto* number = qobject_cast<QSpinBox*>(control))
        return stepTo(number, path, wholeNumber(value));
    else
        throw CommandFault(u"%1 does not take %2"_s.arg(path, quoted(value)));
    QMetaObject::invokeMethod(control, "editingFinished");
}

void turnToPage(QTabWidget* pages, const QString& path, const QString& caption) {
    QTabBar* bar = pages->tabBar();
    for (int page = 0; page < pages->count(); ++page) {
        if (captionText(pages->tabText(page)) != caption || !pages->isTabVisible(page))
            continue;
        if (!pages->isTabEnabled(page))
            throw CommandFault(u"%1 is disabled"_s.arg(quoted(caption)));
        clickPoint(bar, bar->tabRect(page).center());
        return;
    }
    throw CommandFault(u"%1 has no page %2"_s.arg(path, quoted(caption)));
}

void chooseEntry(QWidget* control, const QString& path, const QString& text) {
    if (chooseInTree(control, path, text))
        return;
    if (auto* pages = qobject_cast<QTabWidget*>(control))
        return turnToPage(pages, path, text);
    auto* combo = qobject_cast<QComboBox*>(control);
    if (!combo)
        throw CommandFault(u"%1 has nothing to choose from"_s.arg(path));
    const int index = text.isEmpty() ? -1 : combo->findText(text);
    if (index < 0 && !text.isEmpty())
        throw CommandFault(u"%1 has no entry %2"_s.arg(path, quoted(text)));
    focusOn(control, path);
    combo->setCurrentIndex(index);
    QMetaObject::invokeMethod(combo, "activated", Q_ARG(int, index));
}

void leaveControl(QWidget* control, const QString& path) {
    if (!control->hasFocus() && !control->isAncestorOf(QApplication::focusWidget()))
        throw CommandFault(u"%1 has no focus"_s.arg(path));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
}

QString stateOf(const QWidget* control) {
    const auto word = [](bool holds, const char16_t* name) {
        return (holds ? QString() : u"not-"_s) + QString::fromUtf16(name);
    };
    // The window's own focus: without a window manager no window may be active after a dialog has closed.
    const QWidget* focus = control->window()->focusWidget();
    const bool focused = focus && (focus == control || control->isAncestorOf(focus));
    return QStringList{word(control->isVisible(), u"visible"), word(control->isEnabled(), u"enabled"),
                       word(isReadOnly(control), u"readonly"), word(focused, u"focused")}
        .join(u' ');
}

void printForms(Robot& robot) {
    for (const QWidget* form : robot.forms().openForms())
        Robot::print(u"%1 %2"_s.arg(form->objectName(), quoted(form->windowTitle())));
}

void shoot(Robot& robot, const QString& path) {
    const auto forms = robot.forms().openForms();
    if (forms.empty())
        throw CommandFault(u"no form is open"_s);
    if (!forms.front()->window()->grab().save(path, "PNG"))
        throw CommandFault(u"cannot write %1"_s.arg(path));
}

const report::Document& openReport(Robot& robot) {
    for (const QWidget* form : robot.forms().openForms())
        if (const auto* preview = qobject_cast<const Tfrm_preview*>(form))
            return preview->document();
    throw CommandFault(u"no preview is open"_s);
}

void saveReport(Robot& robot, const QString& path) {
    try {
        savePdf(openReport(robot), path);
    } catch (const report::OutputFault& fault) {
        throw CommandFault(u"cannot write %1: %2"_s.arg(path, QString::fromUtf8(fault.what())));
    }
}

void queueAnswers(Robot& robot, const Words& words) {
    for (const QString& word : words)
        robot.dialogs().queueAnswer(word == "!"_L1 ? DialogAnswers::escape : wholeNumber(word));
}

void pressKey(Robot& robot, const Words& words) {
    const auto forms = robot.forms().openForms();
    pressKeys(forms.empty() ? nullptr : forms.front(), words[0]);
}

void printText(Robot& robot, const Words& words) {
    Robot::print(u"%1 = %2"_s.arg(words[0], quoted(shownText(robot.control(words[0])))));
}

void printAll(const QStringList& facts) {
    for (const QString& fact : facts)
        Robot::print(fact);
}

// The words behind the command's own name; how many it takes stands beside it.
const Actions& actions() {
    static const Actions table{
        {u"start"_s, {0, 0, [](Robot& r, const Words&) { r.startProgram(); }}},
        {u"click"_s, {1, 1, [](Robot& r, const Words& w) { clickControl(r.reachable(w[0]), w[0]); }}},
        {u"double"_s, {1, 1, [](Robot& r, const Words& w) { doubleClickControl(r.reachable(w[0]), w[0]); }}},
        {u"type"_s, {2, 2, [](Robot& r, const Words& w) { typeText(focusOn(r.reachable(w[0]), w[0]), w[1]); }}},
        {u"set"_s, {2, 2, [](Robot& r, const Words& w) { setValue(r.reachable(w[0]), w[0], w[1]); }}},
        {u"choose"_s, {2, 2, [](Robot& r, const Words& w) { chooseEntry(r.reachable(w[0]), w[0], w[1]); }}},
        {u"leave"_s, {1, 1, [](Robot& r, const Words& w) { leaveControl(r.reachable(w[0]), w[0]); }}},
        {u"answer"_s, {1, anyNumber, queueAnswers}},
        {u"input"_s, {1, 1, [](Robot& r, const Words& w) { r.dialogs().queueInput(w[0]); }}},
        {u"file"_s, {1, 1, [](Robot& r, const Words& w) { r.dialogs().queueFile(w[0]); }}},
        {u"key"_s, {1, 1, pressKey}},
        {u"get"_s, {1, 1, printText}},
        {u"state"_s, {1, 1, [](Robot& r, const Words& w) { Robot::print(w[0] + u' ' + stateOf(r.control(w[0]))); }}},
        {u"items"_s, {1, 1, [](Robot& r, const Words& w) { printAll(shownItems(r.control(w[0]))); }}},
        {u"forms"_s, {0, 0, [](Robot& r, const Words&) { printForms(r); }}},
        {u"close"_s, {1, 1, [](Robot& r, const Words& w) { r.reachable(w[0])->close(); }}},
        {u"report"_s, {0, 0, [](Robot& r, const Words&) { printAll(textLines(openReport(r))); }}},
        {u"pdf"_s, {1, 1, [](Robot& r, const Words& w) { saveReport(r, w[0]); }}},
        {u"shot"_s, {1, 1, [](Robot& r, const Words& w) { shoot(r, w[0]); }}},
        {u"watch"_s, {0, 0, [](Robot& r, const Words&) { r.watchNext(); }}},
        {u"wait"_s, {1, 1, [](Robot&, const Words& w) { QTest::qWait(wholeNumber(w[0])); }}},
        {u"took"_s, {0, 0, [](Robot& r, const Words&) { Robot::print(u"took %1 ms"_s.arg(r.lastTook())); }}},
        {u"echo"_s, {1, anyNumber, [](Robot&, const Words& w) { Robot::print(w.join(u' ')); }}},
    };
    return table;
}

} // namespace

void carryOut(Robot& robot, const QStringList& words) {
    const Action* action = nullptr;
    for (const Actions* table : {&actions(), &gridActions()})
        if (const auto found = table->constFind(words.first()); found != table->constEnd())
            action = &*found;
    if (!action)
        throw CommandFault(u"unknown command %1"_s.arg(words.first()));
    const Words rest = words.mid(1);
    if (rest.size() < action->least || rest.size() > action->most)
        throw CommandFault(u"%1 takes other words"_s.arg(words.first()));
    action->run(robot, rest);
}
