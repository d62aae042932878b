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
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 120'000; // milliseconds

QByteArray readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

/// The lines of a script; those that "#:+" joins as one.
QStringList stepsOf(const QString& script) {
    QStringList steps = QString::fromUtf8(readFile(script)).split(QRegularExpression(u"\n(?!#:\\+)"_s));
    return steps.replaceInStrings(u"\n#:+"_s, u"\n"_s);
}

/// The robot at work, and the transcript of all that is worth comparing.
class Case final {
public:
    explicit Case(const QString& script) :
        m_folderOfScript(QFileInfo(script).absolutePath() + u'/'), m_steps(stepsOf(script)) {}

    [[nodiscard]] QByteArray transcript(const QString& robot) {
        openDatabase();
        m_robot.setWorkingDirectory(m_folder.path());
        m_robot.start(robot,
                      QStringList{u"--dir"_s, m_folder.path()} + QProcess::splitCommand(directive(u"options"_s)));
        if (!m_robot.waitForStarted())
            throw std::runtime_error("the robot does not start");
        for (const QString& step : m_steps)
            if (step.startsWith("#:"_L1))
                obey(step.mid(2).trimmed());
            else
                m_robot.write(step.toUtf8() + '\n');
        finish();
        return m_transcript;
    }

private:
    void openDatabase() {
        const QStringList words = directive(u"company"_s).split(u' ');
        if (words.size() == 2) {
            company::Options options;
            options.employees = words[0].toInt();
            options.months = words[1].toInt();
            options.lastMonth = QDate(2026, 10, 1);
            m_database = std::make_unique<TestDatabase>(options);
        } else {
            m_database = std::make_unique<TestDatabase>();
        }
        m_database->writeSettingsFile(m_folder.path());
    }

    /// What stands behind the word of a directive that holds for the whole case; empty where it is not there.
    [[nodiscard]] QString directive(const QString& word) const {
        const QString start = u"#: "_s + word + u' ';
        const QStringList found = m_steps.filter(QRegularExpression(u'^' + start));
        return found.isEmpty() ? QString() : found.first().mid(start.size()).trimmed();
    }

    void obey(const QString& text) {
        const QString verb = text.section(u' ', 0, 0);
        const QString rest = text.mid(verb.size()).trimmed();
        if (verb == u"options" || verb == u"company")
            return;
        waitForRobot();
        if (verb.endsWith(u"-file"_s))
            obey(verb.chopped(5) + u' ' + QString::fromUtf8(readFile(m_folderOfScript + rest)));
        else if (verb == u"main")
            m_database->run(rest);
        else if (verb == u"app")
            m_database->runApp(rest);
        else if (verb == u"rows")
            add(m_database->rows(rest));
        else if (verb == u"rows-app")
            add(m_database->rowsApp(rest));
        else
            throw std::runtime_error("unknown directive: " + verb.toStdString());
    }

    void add(const QStringList& lines) {
        for (const QString& line : lines)
            m_transcript += line.toUtf8() + '\n';
    }

    /// Returns when the robot has done all that it was told so far, or has ended.
    void waitForRobot() {
        const QByteArray mark = "-- " + QByteArray::number(++m_marks) + " --\n";
        m_robot.write("echo " + mark);
        while (!m_transcript.endsWith(mark) && m_robot.waitForReadyRead(patience))
            m_transcript += m_robot.readAllStandardOutput();
        m_transcript += m_robot.readAllStandardOutput();
        if (m_transcript.endsWith(mark))
            m_transcript.chop(mark.size());
        else if (m_robot.state() != QProcess::NotRunning)
            throw std::runtime_error("the robot does not answer; so far:\n" + m_transcript.toStdString());
    }

    void finish() {
        m_robot.closeWriteChannel();
        if (m_robot.state() != QProcess::NotRunning && !m_robot.waitForFinished(patience))
            throw std::runtime_error("the robot does not end; so far:\n" + m_transcript.toStdString());
        m_transcript += m_robot.readAllStandardOutput() + m_robot.readAllStandardError();
        if (m_robot.exitCode() != 0) // after a crash the number of its signal
            m_transcript += "exit " + QByteArray::number(m_robot.exitCode()) + '\n';
    }

    const QString m_folderOfScript;
    const QStringList m_steps;
    const QTemporaryDir m_folder;
    std::unique_ptr<TestDatabase> m_database;
    QProcess m_robot;
    QByteArray m_transcript;
    int m_marks = 0;
};

/// Shows where the two texts part, as the system's own tool does.
int compare(const QString& expectedPath, const QByteArray& transcript) {
    if (readFile(expectedPath) == transcript)
        return 0;
    QProcess diff;
    diff.setProcessChannelMode(QProcess::ForwardedChannels);
    diff.start(u"diff"_s, {u"-u"_s, expectedPath, u"-"_s});
    diff.write(transcript);
    diff.closeWriteChannel();
    diff.waitForFinished();
    return 1;
}

int runCase(const QStringList& arguments) {
    if (arguments.size() < 3)
        throw std::runtime_error("usage: robot_case ROBOT CASE.robot [--update]");
    const QString script = arguments[2];
    const QByteArray transcript = Case(script).transcript(QFileInfo(arguments[1]).absoluteFilePath());
    const QString expected = script.left(script.size() - 5) + u"expected"_s;
    if (!arguments.contains(u"--update"_s))
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
