#pragma once

#include "tests/robot/controls.h"
#include "tests/robot/dialogs.h"
#include "tests/robot/script.h"

#include "frame/window/program.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>
#include <memory>

/// Drives the program from a script, one command at a time, from inside the event loop: a command that opens a modal
/// screen stays on the stack while the next one already speaks to that screen.
class Robot final : public QObject {
    Q_OBJECT

public:
    Robot(window::ProgramEnvironment environment, std::FILE* input);
    ~Robot() override;

    /// Runs the script to its end; gives the exit status.
    int run();

    // What the commands work on.
    [[nodiscard]] FormOrder& forms() { return m_forms; }
    [[nodiscard]] DialogAnswers& dialogs() { return m_dialogs; }
    [[nodiscard]] QWidget* control(const QString& path) { return findControl(m_forms, path); }
    /// The control, after making sure that a person could work on it now.
    [[nodiscard]] QWidget* reachable(const QString& path);
    [[nodiscard]] window::Program& program() { return *m_program; }
    [[nodiscard]] qint64 lastTook() const { return m_lastTook; }
    void startProgram();

    static void print(const QString& fact);
    /// Handles what stands in the queues, as happens between two actions of a person.
    static void settle();

private:
    void pulse();
    void step();
    [[nodiscard]] static QWidget* frontWindow();
    [[nodiscard]] bool mustWait() const;
    static void closeLeftOpen(QWidget* front);
    void execute(const Command& command);
    [[noreturn]] void fail(const QString& why) const;

    window::ProgramEnvironment m_environment;
    std::unique_ptr<window::Program> m_program;
    Script m_script;
    FormOrder m_forms{nullptr};
    DialogAnswers m_dialogs;
    std::vector<QWidget*> m_running; // the front window that each command on the stack began under
    QElapsedTimer m_clock;
    qint64 m_lastTook = 0;
    bool m_finished = false;
};

/// Carries out one command. Throws CommandError.
void carryOut(Robot& robot, const QStringList& words);
