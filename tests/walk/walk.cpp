// Walks through a robot script with a mishap at each statement, and looks what became of the saved runs.
//
//     walk ROBOT SCRIPT.robot [EVERY [MISHAP...]]
//
// The script saves a run in a company that has one already (runs.sql beside the script). First it runs undisturbed;
// then, for each statement that it sends (or each seventh, with 7 for EVERY) and every kind of mishap (or those named),
// it runs again from the same start. After each walk the runs in the tables must be the old ones or the new ones,
// whole. The form must have closed over the new ones only; over the old ones it must have said so, and over the new
// ones it may stay open only where it said that the end is not known. Runs that a refused read has made smaller must
// have left their notice. A server that is away for a while is back once the program has said something; a script that
// saves once more must then end with the new runs.

#include "tests/support/test_database.h"
#include "tests/walk/proxy.h"

#include "base/settings_file/settings_file.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace {

using namespace Qt::StringLiterals;

constexpr auto patience = std::chrono::seconds(90);

const QStringList mishapNames{u"cut-before"_s, u"cut-after"_s, u"deadlock"_s, u"stall"_s, u"gone"_s, u"away"_s};

QString readFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

/// The company, the program in front of it, and the proxy between them.
class Walk final {
public:
    Walk(const QString& robot, const QString& script) :
        m_robot(robot), m_script(script), m_runs(readFile(QFileInfo(script).path() + u"/runs.sql"_s)) {
        const QString shared = QFileInfo(script).path() + u"/../register/"_s;
        m_database.runApp(readFile(shared + u"app.sql"_s));
        m_database.run(readFile(shared + u"company.sql"_s));
        const db::ConnectionSettings& server = m_database.mainSettings();
        settings::writeSettingsFile(m_folder.filePath(u"user.tvk"_s), {.user = server.user,
                                                                       .server = u"localhost"_s,
                                                                       .password = server.password,
                                                                       .database = server.database,
                                                                       .port = m_proxy.serverPort()});
    }

    /// The mishaps at every so many statements; gives the number of walks that went wrong.
    int all(int every, const QStringList& mishaps) {
        run({});
        const int statements = m_proxy.plan.seen;
        m_new = stored();
        if (m_new == m_old || m_output.contains("message ") || m_output.contains("error: line"))
            throw std::runtime_error("the script fails by itself:\n" + m_output.toStdString());
        int walks = 0, wrong = 0;
        for (const QString& name : mishaps) {
            const auto mishap = Mishap(mishapNames.indexOf(name));
            // Each kind begins elsewhere, so that together they meet more of the statements.
            for (int statement = 1 + int(mishap) * 3 % every; statement <= statements; statement += every, ++walks)
                wrong += isRight({mishap, statement}) ? 0 : 1;
        }
        std::printf("%d statements, %d walks, %d wrong; stored %d, refused %d, other %d, end not known %d\n",
                    statements, walks, wrong, m_stored, m_refused, m_other, m_notKnown);
        if (mishaps.contains(mishapNames[int(Mishap::Away)]) && m_notKnown == 0)
            throw std::runtime_error("no walk met the end of the save: choose another number of statements");
        return wrong;
    }

private:
    bool isRight(const Plan& plan) {
        run(plan);
        const std::string wrong = whatIsWrong(plan.mishap);
        if (!wrong.empty())
            std::printf("%s at statement %d: %s\n%s%s\n\n", qPrintable(mishapNames[int(plan.mishap)]), plan.statement,
                        wrong.c_str(), m_output.constData(), qPrintable(stored()));
        return wrong.empty();
    }

    std::string whatIsWrong(Mishap mishap) {
        const QString runs = stored();
        const bool isOpen = m_output.contains("frm_isian_hitung_gaji \"");
        const bool isKnown = !m_output.contains("message_id[6]");
        m_notKnown += isKnown ? 0 : 1;
        if (runs == m_old) {
            ++m_refused;
            static const QRegularExpression refusal(u"message \\S+ (fault|message_id\\[[456]\\])"_s);
            if (!QString::fromUtf8(m_output).contains(refusal))
                return "nothing is stored, and nobody says so";
            return !isKnown && mishap == Mishap::Away ? "nothing is stored, although the server is back" : "";
        }
        // A read that is refused, not lost, costs what hangs on it, as it always did. And who saves once more stores
        // the former lines where the computation was what failed.
        const bool isOther = runs != m_new;
        const bool maybeOther = mishap == Mishap::Deadlock || (mishap == Mishap::Away && isKnown);
        if (isOther && (!maybeOther || !contradictions().isEmpty()))
            return "the runs are neither the old nor the new ones";
        ++(isOther ? m_other : m_stored);
        if (isOther && !m_output.contains("Pemberitahuan (") && !m_output.contains(" fault \""))
            return "the runs are smaller, and nobody says so";
        return isOpen && (isKnown || mishap == Mishap::Away) ? "stored, yet the form is still open" : "";
    }

    void run(const Plan& plan) {
        m_database.run(m_runs);
        m_old = stored();
        m_proxy.plan = plan;
        m_output.clear();
        QProcess robot;
        robot.setProcessChannelMode(QProcess::MergedChannels);
        robot.setWorkingDirectory(m_folder.path());
        QEventLoop loop;
        QObject::connect(&robot, &QProcess::finished, &loop, &QEventLoop::quit);
        QObject::connect(&robot, &QProcess::readyRead, [this, &robot] {
            m_output += robot.readAll();
            if (m_proxy.plan.mishap == Mishap::Away && m_output.contains("message "))
                m_proxy.plan.isGone = false;
        });
        QTimer::singleShot(patience, &robot, &QProcess::kill);
        robot.start(m_robot, {u"--user"_s, u"hrd"_s, u"--now"_s, u"2026-11-05 08:15"_s, m_script});
        loop.exec();
        if (robot.exitStatus() != QProcess::NormalExit || (robot.exitCode() != 0 && robot.exitCode() != 2))
            throw std::runtime_error("the program ended badly:\n" + m_output.toStdString());
    }

    /// All saved runs as text.
    QString stored() {
        QStringList rows;
        for (const QString& table : {u"m order by process_id"_s, u"d order by process_id, no_urut"_s,
                                     u"sd order by process_id, no_urut, no_urut_ref"_s})
            rows += m_database.rows(u"select * from z_pay_process_"_s + table);
        return rows.join(u'\n');
    }

    /// Totals that do not agree with what they are made of, and lines and rows that hang in the air.
    QStringList contradictions() {
        return m_database.rows(
            u"select 'run', process_id from z_pay_process_m as m where tot_process<>(select "
            "ifnull(sum(tot_payroll), 0) from z_pay_process_d as d where d.process_id=m.process_id) union all "
            "select 'line', process_id from z_pay_process_d as d where tot_payroll<>ifnull((select "
            "sum(if(c.type=0, 1, -1)*subtot_payroll) from z_pay_process_sd as sd inner join z_pay_com as c on "
            "sd.com_id=c.com_id where sd.process_id=d.process_id and sd.no_urut=d.no_urut), 0) "
            "or not exists (select 1 from z_pay_process_m as m where m.process_id=d.process_id) union all "
            "select 'row', process_id from z_pay_process_sd as sd where not exists "
            "(select 1 from z_pay_process_d as d where d.process_id=sd.process_id and d.no_urut=sd.no_urut)"_s);
    }

    const QString m_robot;
    const QString m_script;
    const QString m_runs; ///< brings the saved runs back to the start
    const QTemporaryDir m_folder;
    TestDatabase m_database;
    Proxy m_proxy{testServer().port};
    QString m_old;
    QString m_new;
    QByteArray m_output;
    int m_stored = 0;
    int m_refused = 0;
    int m_other = 0;
    int m_notKnown = 0;
};

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    try {
        const int every = words.value(3, u"1"_s).toInt();
        const QStringList mishaps = words.size() > 4 ? words.mid(4) : mishapNames.mid(0, int(Mishap::Away));
        if (words.size() < 3 || every < 1 ||
            !std::ranges::all_of(mishaps, [](const QString& name) { return mishapNames.contains(name); }))
            throw std::runtime_error("usage: walk ROBOT SCRIPT.robot [EVERY [MISHAP...]]");
        Walk walk(QFileInfo(words[1]).absoluteFilePath(), QFileInfo(words[2]).absoluteFilePath());
        return walk.all(every, mishaps) == 0 ? 0 : 1;
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
}
