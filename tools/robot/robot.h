#pragma once

#include "tools/robot/controls.h"
#include "tools/robot/dialogs.h"
#include "tools/robot/script.h"

#include "frame/program.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>
#include <memory>

/// Drives the program from a script, one command at a time, from inside the event loop: a command that opens a modal
/// screen stays on the stack while the next one already speaks to that screen.
class Robot final : public QObject {
    Q_OBJECT

public:
    Robot(frame::ProgramEnvironment environment, std::istream& input);
    ~Robot() override;

    /// Runs the script to its end; gives the exit status.
    int run();

    // What the commands work on.
    [[nodiscard]] FormOrder& forms() { return m_forms; }
    [[nodiscard]] DialogAnswers& dialogs() { return m_dialogs; }
    [[nodiscard]] QWidget* control(const QString& path) { return findControl(m_forms, path); }
    [[nodiscard]] QWidget* reachable(const QString& path) { return findReachable(m_forms, path); }
    [[nodiscard]] qint64 lastTook() const { return m_lastTook; }
    void startProgram();
    /// The next command may be spoken to as soon as it shows that a statement of its takes long.
    void watchNext() { m_watchedDepth = m_running.size(); }

    static void print(const QString& fact);
    /// Handles what stands in the queues, as happens between two actions of a person.
    static void settle();
    /// Ends the run with the line that is being carried out.
    [[noreturn]] void fail(const QString& why) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pulse();
    void step();
    void finish();
    [[nodiscard]] static QWidget* frontWindow();
    [[nodiscard]] static bool canStopStatement();
    [[nodiscard]] bool mustWait() const;
    static void closeLeftOpen(QWidget* front);
    void execute(const QStringList& words);

    frame::ProgramEnvironment m_environment;
    Script m_script;
    FormOrder m_forms;
    DialogAnswers m_dialogs{*this};
    std::vector<QWidget*> m_running; // the front window that each command on the stack began under
    QElapsedTimer m_clock;
    qint64 m_lastTook = 0;
    std::size_t m_watchedDepth = 0; ///< of the command that is not waited for; 0 for none
    bool m_finished = false;
    std::unique_ptr<frame::Program> m_program; // goes first: what follows events is still there then
};

/// Carries out one command. Throws CommandFault.
void carryOut(Robot& robot, const QStringList& words);
