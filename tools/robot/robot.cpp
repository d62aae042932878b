#include "tools/robot/robot.h"

#include "toolkit/ui/wait_panel.h"

#include <QApplication>
#include <QtTest/qtestsystem.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr int patience = 5000; // milliseconds
} // namespace

Robot::Robot(frame::ProgramEnvironment environment, std::istream& input) :
    m_environment(std::move(environment)), m_script(input) {
    qApp->installEventFilter(this);
}

Robot::~Robot() = default;

int Robot::run() {
    pulse();
    return QApplication::exec();
}

bool Robot::eventFilter(QObject* watched, QEvent* event) {
    m_forms.follow(watched, event);
    m_dialogs.follow(watched, event);
    return false;
}

void Robot::print(const QString& fact) {
    std::printf("%s\n", qUtf8Printable(fact));
    std::fflush(stdout);
}

void Robot::settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents();
    QApplication::processEvents();
}

void Robot::startProgram() {
    m_program.reset();
    m_program = std::make_unique<frame::Program>(m_environment);
    const bool started = m_program->start();
    print(started ? u"started"_s : u"refused"_s);
    // A window manager takes its time; a person waits for the frame too.
    if (started)
        (void)QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }, patience);
}

/// What holds everything behind it: a menu or list that is dropped down, else a modal screen.
QWidget* Robot::frontWindow() {
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::activeModalWidget();
}

bool Robot::canStopStatement() {
    return std::ranges::any_of(QApplication::allWidgets(), [](QWidget* widget) {
        const auto* panel = qobject_cast<WaitPanel*>(widget);
        return panel && panel->isVisible() && !panel->isCancelled();
    });
}

bool Robot::mustWait() const {
    if (m_dialogs.isAnswering())
        return true;
    // Whatever is in front, its input is locked as long as a statement can be stopped.
    if (canStopStatement())
        return m_running.size() > m_watchedDepth;
    // A command is still at work unless it has put a new window in front of the person.
    QWidget* front = frontWindow();
    return !m_running.empty() && (!front || front == m_running.back() || !front->isVisible());
}

void Robot::pulse() {
    // A timer of its own for every beat: one that is being handled does not beat in the event loops inside its handler.
    QTimer::singleShot(1, this, &Robot::step);
}

void Robot::step() {
    if (m_finished)
        return;
    pulse();
    if (mustWait())
        return;
    if (!m_running.empty())
        m_lastTook = m_clock.elapsed();
    try {
        if (const std::optional<QStringList> words = m_script.next())
            execute(*words);
        else if (QWidget* front = frontWindow())
            closeLeftOpen(front);
        else
            finish();
    } catch (const CommandFault& error) {
        fail(QString::fromUtf8(error.what()));
    }
}

void Robot::finish() {
    m_finished = true;
    if (m_program)
        m_program->closeAll();
    QApplication::exit(0);
}

/// A screen that the script left open is still on the stack; the frame may go only after it.
void Robot::closeLeftOpen(QWidget* front) {
    if (front->close())
        return;
    std::fflush(stdout);
    std::_Exit(0);
}

void Robot::execute(const QStringList& words) {
    const bool measured = words.first() != "took"_L1;
    if (measured)
        m_clock.start();
    m_running.push_back(frontWindow());
    const std::size_t depth = m_running.size();
    carryOut(*this, words);
    settle();
    if (depth == m_watchedDepth && words.first() != "watch"_L1)
        m_watchedDepth = 0;
    // Commands that ran inside this one have their own time; the outer one ended when its screen appeared.
    if (measured && m_running.size() == depth)
        m_lastTook = m_clock.elapsed();
    m_running.pop_back();
}

void Robot::fail(const QString& why) const {
    std::fflush(stdout);
    std::fprintf(stderr, "error: line %d: %s\n", m_script.line(), qPrintable(why));
    // Handlers of open screens are still on the stack; there is no way back through them.
    std::_Exit(2);
}
