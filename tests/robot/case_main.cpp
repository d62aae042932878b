// Runs one robot script on databases of its own and compares what it prints with what is expected.
//
//     robot_case ROBOT CASE.robot [--update]
//
// The script is the robot's own language. Comments that begin with "#:" speak to this driver, at their place:
//     #: company EMPLOYEES MONTHS   databases with a generated company, else empty ones
//     #: options --user hrd ...     options of the robot
//     #: main SQL  #: app SQL       runs statements on one of the databases; "#:+" goes on with the line before
//     #: main-file F  #: app-file F the same from a file beside the script
//     #: rows SQL  #: rows-app SQL  puts the rows into the output, tab-separated
// The output, with what the robot said on standard error and its exit status if it is not 0, must equal CASE.expected;
// --update writes that file instead.

#include "tests/support/test_database.h"

#include "tools/company/generate.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>
#include <stdexcept>

namespace {

constexpr int patience = 120'000; // milliseconds

QByteArray readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

/// One line of the case, or several that "#:+" joins.
struct Step {
    bool isDirective = false;
    QString text; ///< the directive without its mark
};

std::vector<Step> stepsOf(const QString& script) {
    std::vector<Step> steps;
    for (const QString& line : script.split(u'\n')) {
        if (line.startsWith(QLatin1String("#:+")) && !steps.empty())
            steps.back().text += u'\n' + line.mid(3);
        else if (line.startsWith(QLatin1String("#:")))
            steps.push_back({true, line.mid(2).trimmed()});
        else
            steps.push_back({false, line});
    }
    return steps;
}

/// The robot at work, and the transcript of all that is worth comparing.
class Case final {
public:
    Case(QString robot, const QString& script) :
        m_robotPath(std::move(robot)), m_folderOfScript(QFileInfo(script).absolutePath() + u'/'),
        m_steps(stepsOf(QString::fromUtf8(readFile(script)))) {
        m_robot.setProcessChannelMode(QProcess::SeparateChannels);
    }

    [[nodiscard]] QByteArray transcript() {
        openDatabase();
        m_options = QProcess::splitCommand(directive(QStringLiteral("options")));
        for (const Step& step : m_steps)
            step.isDirective ? obey(step.text) : tell(step.text);
        finish();
        return m_transcript;
    }

private:
    void openDatabase() {
        company::Options options;
        options.lastMonth = QDate(2026, 10, 1);
        const QStringList words = directive(QStringLiteral("company")).split(u' ');
        const bool generated = words.size() == 2;
        if (generated) {
            options.employees = words[0].toInt();
            options.months = words[1].toInt();
        }
        m_database = generated ? std::make_unique<TestDatabase>(options) : std::make_unique<TestDatabase>();
        m_database->writeSettingsFile(m_folder.path());
    }

    /// What stands behind the word of a directive that holds for the whole case; empty where it is not there.
    [[nodiscard]] QString directive(const QString& word) const {
        for (const Step& step : m_steps)
            if (step.isDirective && step.text.startsWith(word + u' '))
                return step.text.mid(word.size() + 1).trimmed();
        return {};
    }

    void obey(const QString& text) {
        const QString verb = text.section(u' ', 0, 0);
        const QString rest = text.mid(verb.size()).trimmed();
        if (verb == QLatin1String("options") || verb == QLatin1String("company"))
            return;
        waitForRobot();
        if (verb.endsWith(QLatin1String("-file"))) {
            obey(verb.chopped(5) + u' ' + QString::fromUtf8(readFile(m_folderOfScript + rest)));
            return;
        }
        if (verb == QLatin1String("main"))
            m_database->run(rest);
        else if (verb == QLatin1String("app"))
            m_database->runApp(rest);
        else if (verb == QLatin1String("rows"))
            add(m_database->rows(rest));
        else if (verb == QLatin1String("rows-app"))
            add(m_database->rowsApp(rest));
        else
            throw std::runtime_error("unknown directive: " + verb.toStdString());
    }

    void add(const QStringList& lines) {
        for (const QString& line : lines)
            m_transcript += line.toUtf8() + '\n';
    }

    void tell(const QString& line) {
        if (m_robot.state() == QProcess::NotRunning && !m_started) {
            m_started = true;
            m_robot.setWorkingDirectory(m_folder.path());
            m_robot.start(m_robotPath, QStringList{QStringLiteral("--dir"), m_folder.path()} + m_options);
            if (!m_robot.waitForStarted())
                throw std::runtime_error("the robot does not start");
        }
        m_robot.write(line.toUtf8() + '\n');
    }

    /// Returns when the robot has done all that it was told so far, or has ended.
    void waitForRobot() {
        if (!m_started)
            return;
        const QByteArray mark = "-- " + QByteArray::number(++m_marks) + " --\n";
        m_robot.write("echo " + mark);
        QByteArray output;
        while (!output.endsWith(mark) && m_robot.state() != QProcess::NotRunning) {
            if (!m_robot.waitForReadyRead(patience) && m_robot.state() != QProcess::NotRunning)
                throw std::runtime_error("the robot does not answer; so far:\n" +
                                         (m_transcript + output).toStdString());
            output += m_robot.readAllStandardOutput();
        }
        output += m_robot.readAllStandardOutput();
        if (output.endsWith(mark))
            output.chop(mark.size());
        m_transcript += output;
    }

    void finish() {
        m_robot.closeWriteChannel();
        if (m_robot.state() != QProcess::NotRunning && !m_robot.waitForFinished(patience))
            throw std::runtime_error("the robot does not end; so far:\n" + m_transcript.toStdString());
        m_transcript += m_robot.readAllStandardOutput() + m_robot.readAllStandardError();
        if (m_robot.exitStatus() == QProcess::CrashExit || m_robot.exitCode() != 0)
            m_transcript += "exit " + QByteArray::number(m_robot.exitCode()) + '\n';
    }

    const QString m_robotPath;
    const QString m_folderOfScript;
    const std::vector<Step> m_steps;
    const QTemporaryDir m_folder;
    std::unique_ptr<TestDatabase> m_database;
    QProcess m_robot;
    QStringList m_options;
    QByteArray m_transcript;
    bool m_started = false;
    int m_marks = 0;
};

/// Shows where the two texts part, as the system's own tool does.
int compare(const QString& expectedPath, const QByteArray& transcript) {
    if (readFile(expectedPath) == transcript)
        return 0;
    QProcess diff;
    diff.setProcessChannelMode(QProcess::ForwardedChannels);
    diff.start(QStringLiteral("diff"), {QStringLiteral("-u"), expectedPath, QStringLiteral("-")});
    diff.write(transcript);
    diff.closeWriteChannel();
    diff.waitForFinished();
    return 1;
}

int runCase(const QStringList& arguments) {
    if (arguments.size() < 3)
        throw std::runtime_error("usage: robot_case ROBOT CASE.robot [--update]");
    const QString script = arguments[2];
    Case robotCase(QFileInfo(arguments[1]).absoluteFilePath(), script);
    const QByteArray transcript = robotCase.transcript();
    const QString expected = script.left(script.size() - 5) + QStringLiteral("expected");
    if (!arguments.contains(QStringLiteral("--update")))
        return compare(expected, transcript);
    QFile file(expected);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(transcript) == transcript.size();
    return written ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    try {
        return runCase(QCoreApplication::arguments());
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
