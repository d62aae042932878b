#include "tests/support/test_database.h"

#include "base/settings_file/settings_file.h"
#include "tools/company/generate.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString token = u"Amber#reef73:~QLD~41|68"_s;
const QString running = u"orvane.start: running"_s;
constexpr int patience = 30'000; // milliseconds

/// One process of the real program, and what its log has said so far.
class Started final {
public:
    Started(const QString& program, const QStringList& arguments) {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(program, arguments);
    }
    ~Started() { kill(); }

    /// False where the process ends, or time runs out, before its log says the text.
    bool says(const QString& text) {
        bool more = true;
        while (more && !m_log.contains(text)) {
            more = m_process.waitForReadyRead(patience);
            m_log += QString::fromUtf8(m_process.readAll());
        }
        return m_log.contains(text);
    }
    /// The exit code, after a crash the number of its signal; none where the process goes on.
    std::optional<int> end(int milliseconds = patience) {
        if (!m_process.waitForFinished(milliseconds))
            return std::nullopt;
        m_log += QString::fromUtf8(m_process.readAll());
        return m_process.exitCode();
    }
    void kill() {
        m_process.kill();
        m_process.waitForFinished();
    }
    [[nodiscard]] std::string log() const { return m_log.toStdString(); }

private:
    QProcess m_process;
    QString m_log;
};

QString programBeside(const QString& name) {
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

TestDatabase& database() {
    static TestDatabase shared;
    return shared;
}

settings::DatabaseSettings good() {
    const db::ConnectionSettings& server = database().mainSettings();
    return {.user = server.user,
            .server = u"127.0.0.1"_s,
            .password = server.password,
            .database = server.database,
            .port = server.port};
}

/// A folder with the program and its settings file. A second name for the same file, on the same disk, is another
/// installed path.
class Installed final {
public:
    Installed() {
        std::filesystem::create_hard_link(programBeside(u"orvane-payroll"_s).toStdString(),
                                          m_folder.filePath(u"payroll"_s).toStdString());
        write(good());
    }

    [[nodiscard]] QString settingsFile() const { return m_folder.filePath(u"user.tvk"_s); }
    void write(const settings::DatabaseSettings& settings) const {
        settings::writeSettingsFile(settingsFile(), settings);
    }

    [[nodiscard]] std::unique_ptr<Started> start(const QStringList& arguments = {token, u"budi"_s}) const {
        qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
        return std::make_unique<Started>(m_folder.filePath(u"payroll"_s), arguments);
    }
    void expectSilentEnd() const {
        QElapsedTimer clock;
        clock.start();
        const auto process = start();
        EXPECT_EQ(process->end(), 0);
        EXPECT_TRUE(process->log().ends_with("ended: no session with the database\n")) << process->log();
        EXPECT_LT(clock.elapsed(), 15'000);
    }

private:
    QTemporaryDir m_folder{QCoreApplication::applicationDirPath() + u"/start-XXXXXX"_s};
};

} // namespace

TEST(Start, OnlyTheRightTokenStartsAndTheOtherArgumentsMayBeMissing) {
    const struct {
        QStringList arguments;
        bool starts;
    } cases[] = {
        {{}, false},
        {{u""_s, u"budi"_s}, false},
        {{token.toLower(), u"budi"_s}, false},
        {{token.chopped(1), u"budi"_s}, false},
        {{u' ' + token, u"budi"_s}, false},
        {{token}, true},
        {{token, u"budi"_s, u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"ignored"_s}, true},
    };
    const Installed program;
    for (const auto& [arguments, starts] : cases) {
        SCOPED_TRACE(arguments.join(u'|').toStdString());
        const auto process = program.start(arguments);
        if (starts) {
            EXPECT_TRUE(process->says(running)) << process->log();
        } else {
            EXPECT_EQ(process->end(), 0);
            EXPECT_EQ(process->log(), "orvane.start: ended: the launch token is missing or wrong\n");
        }
    }
}

TEST(Start, ASecondStartEndsAndBringsTheFirstForward) {
    const Installed program;
    const Installed other;
    const auto first = program.start();
    ASSERT_TRUE(first->says(running)) << first->log();
    for (const QStringList& arguments : {QStringList{token, u"budi"_s}, QStringList{}}) {
        const auto second = program.start(arguments);
        EXPECT_EQ(second->end(), 0);
        EXPECT_FALSE(second->says(running));
    }
    EXPECT_TRUE(first->says(u"brought forward by another start"_s));
    EXPECT_TRUE(other.start()->says(running)) << "the program in another folder runs beside the first";
}

TEST(Start, PingsAnAddressButNoNameAndIsNotBlockedByAKilledProgram) {
    const Installed program;
    const auto byAddress = program.start();
    EXPECT_TRUE(byAddress->says(running)) << byAddress->log();
    EXPECT_TRUE(byAddress->says(u"ping \"127.0.0.1\" answered"_s)) << byAddress->log();
    byAddress->kill();

    settings::DatabaseSettings named = good();
    named.server = u"localhost"_s;
    program.write(named);
    const auto byName = program.start();
    EXPECT_TRUE(byName->says(running)) << byName->log();
    EXPECT_EQ(byName->log().find("ping \""), std::string::npos);
}

TEST(Start, WrongSettingsEndInSilence) {
    using Settings = settings::DatabaseSettings;
    const auto changed = [](auto member, auto value) {
        Settings settings = good();
        settings.*member = value;
        return settings;
    };
    const Settings cases[] = {
        changed(&Settings::user, u"nobody"_s),
        changed(&Settings::password, u"wrong"_s),
        changed(&Settings::database, u"nowhere"_s),
        changed(&Settings::server, u"no-such-host.invalid"_s),
        // A broadcast address: this machine refuses to send there, nothing leaves it.
        changed(&Settings::server, u"255.255.255.255"_s),
        changed(&Settings::port, quint16(1)),
    };
    const Installed program;
    for (const Settings& settings : cases) {
        SCOPED_TRACE(settings.user.toStdString() + "@" + settings.server.toStdString());
        program.write(settings);
        program.expectSilentEnd();
    }
}

TEST(Start, ADamagedOrMissingSettingsFileEndsInSilence) {
    const Installed program;
    QFile file(program.settingsFile());
    ASSERT_TRUE(file.resize(file.size() / 2));
    program.expectSilentEnd();
    ASSERT_TRUE(file.remove());
    program.expectSilentEnd();
}

TEST(Start, WithoutADisplayASentenceIsSaid) {
    const Installed program;
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("DISPLAY", "nowhere");
    const auto process = program.start();
    EXPECT_EQ(process->end(), 1);
    EXPECT_TRUE(process->says(u"There is no display"_s)) << process->log();
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

TEST(Start, AnApplicationDatabaseOutOfReachLeavesARunningFrame) {
    const Installed program;
    settings::DatabaseSettings alone = good();
    alone.database = database().appSettings().database;
    program.write(alone);
    const auto process = program.start();
    EXPECT_TRUE(process->says(u"fault"_s)) << process->log();
    EXPECT_EQ(process->end(3'000), std::nullopt) << process->log();
}

namespace {

/// A user of the databases who may do what the README's lines grant, and no more.
struct GrantedUser {
    explicit GrantedUser(TestDatabase& company) : m_company(company) {
        QFile readme(QStringLiteral(README));
        EXPECT_TRUE(readme.open(QIODevice::ReadOnly));
        QString lines = QString::fromUtf8(readme.readAll());
        lines.replace(u"orvane_app."_s, company.appSettings().database + u'.');
        lines.replace(u"orvane."_s, company.mainSettings().database + u'.');
        lines.replace(u"payroll@'%'"_s, name + u"@'%'"_s);
        for (const QString& line : lines.split(u'\n'))
            if (line.startsWith(u"    CREATE USER") || line.startsWith(u"    GRANT"))
                company.run(line);
    }
    ~GrantedUser() { m_company.run(u"drop user "_s + name); }

    const QString name = u"granted_"_s + QString::number(QCoreApplication::applicationPid());

private:
    TestDatabase& m_company;
};

} // namespace

TEST(Grants, ThatTheReadmeTellsSufficeFromTheStartToASavedAndADeletedRun) {
    company::Options options;
    options.employees = 5;
    options.months = 1;
    options.lastMonth = QDate(2026, 10, 1);
    TestDatabase company(options);
    const GrantedUser user(company);
    const QTemporaryDir folder;
    settings::DatabaseSettings file = good();
    file.user = user.name;
    file.password = u"SECRET"_s;
    file.database = company.mainSettings().database;
    settings::writeSettingsFile(folder.filePath(u"user.tvk"_s), file);
    QFile script(folder.filePath(u"script"_s));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("start\nclick btn_cari\nclick Image2\nclick btn_tambah\ntype dbe_nama Oktober\n"
                 "set dbtp_tgl_aw 2026-10-01\nset dbtp_tgl_akh 2026-10-31\nclick btn_select_all\n"
                 "click btn_select_all2\nclick btn_proses\nclick btn_simpan\nset dtp_tgl_aw 2026-10-01\n"
                 "click btn_cari\ntick dbg_m #1\nclick btn_edit\nclick btn_hitung\nclick btn_simpan\ntick dbg_m #1\n"
                 "answer 1\nclick btn_hapus\n");
    script.close();
    Started robot(programBeside(u"robot"_s), {u"--dir"_s, folder.path(), u"--user"_s, u"budi"_s, script.fileName()});
    EXPECT_EQ(robot.end(), 0) << robot.log();
    EXPECT_EQ(robot.log().find("fault"), std::string::npos) << robot.log();
    EXPECT_EQ(company.rows(u"select log_note from user_log where login_id='budi'"_s).join(u'|').toStdString(),
              "Isian Perhitungan Gaji [Data Baru] - Insert - [Oktober, 2026-10-01 -- 2026-10-31]|"
              "Isian Perhitungan Gaji [Ubah Data] - Update - [Oktober, 2026-10-01 -- 2026-10-31]|"
              "PROSES PERHITUNGAN GAJI - Hapus [Oktober, 2026-10-01 -- 2026-10-31]");
    EXPECT_EQ(company.rows(u"select * from z_pay_process_d"_s), QStringList());
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    qputenv("QT_LOGGING_RULES", "orvane.*=true");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return RUN_ALL_TESTS();
}
