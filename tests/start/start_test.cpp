#include "tests/support/test_database.h"

#include "frame/settings_file/field_code.h"
#include "frame/settings_file/settings_file.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>

namespace {

const QString token = QStringLiteral("Amber#reef73:~QLD~41|68");
const QString running = QStringLiteral("orvane.start: running");
constexpr int patience = 30'000; // milliseconds

/// One process of the real program, and what its log has said so far.
class Started final {
public:
    Started(const QString& program, const QStringList& arguments, const QString& configuration) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_LOGGING_RULES"_qs, u"orvane.*=true"_qs);
        environment.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen"_qs);
        environment.insert(u"XDG_CONFIG_HOME"_qs, configuration);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(program, arguments);
    }
    ~Started() {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// False where the process ends, or time runs out, before its log says the text.
    bool says(const QString& text) {
        while (!m_log.contains(text)) {
            const bool more = m_process.waitForReadyRead(patience);
            m_log += QString::fromUtf8(m_process.readAll());
            if (!more && !m_log.contains(text))
                return false;
        }
        return true;
    }
    /// The exit code, none where the process goes on.
    std::optional<int> end(int milliseconds = patience) {
        if (!m_process.waitForFinished(milliseconds))
            return std::nullopt;
        m_log += QString::fromUtf8(m_process.readAll());
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    void kill() {
        m_process.kill();
        m_process.waitForFinished();
    }
    [[nodiscard]] const QString& log() const { return m_log; }

private:
    QProcess m_process;
    QString m_log;
};

class Start : public testing::Test {
protected:
    static void SetUpTestSuite() {
        company::Options options;
        options.employees = 5;
        options.months = 1;
        options.lastMonth = QDate(2026, 10, 1);
        s_database = std::make_unique<TestDatabase>(options);
    }
    static void TearDownTestSuite() { s_database.reset(); }

    void SetUp() override {
        install(m_folder);
        write(good());
    }

    /// A second name for the same file, on the same disk, is another installed path.
    static void install(const QTemporaryDir& folder) {
        std::filesystem::create_hard_link(PROGRAM, folder.filePath(u"payroll"_qs).toStdString());
    }

    static settings::DatabaseSettings good() {
        const db::ConnectionSettings& server = s_database->mainSettings();
        return {.user = server.user,
                .server = u"127.0.0.1"_qs,
                .password = server.password,
                .database = server.database,
                .port = server.port};
    }

    void write(const settings::DatabaseSettings& settings) { settings::writeSettingsFile(path(), settings); }
    void writeText(const QString& text) {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
    QString path() const { return m_folder.filePath(u"user.tvk"_qs); }

    std::unique_ptr<Started> start(const QStringList& arguments, const QTemporaryDir& folder) {
        return std::make_unique<Started>(folder.filePath(u"payroll"_qs), arguments, m_folder.path());
    }
    std::unique_ptr<Started> start(const QStringList& arguments = {token, u"budi"_qs}) {
        return start(arguments, m_folder);
    }

    inline static std::unique_ptr<TestDatabase> s_database;
    QTemporaryDir m_folder{QCoreApplication::applicationDirPath() + u"/start-XXXXXX"_qs};
};

} // namespace

TEST_F(Start, OnlyTheRightTokenStartsAndTheOtherArgumentsMayBeMissing) {
    const struct {
        QStringList arguments;
        bool starts;
    } cases[] = {
        {{}, false},
        {{u""_qs, u"budi"_qs}, false},
        {{token.toLower(), u"budi"_qs}, false},
        {{token.chopped(1), u"budi"_qs}, false},
        {{u' ' + token, u"budi"_qs}, false},
        {{token}, true},
        {{token, u"budi"_qs, u"1"_qs, u"2"_qs, u"3"_qs, u"4"_qs, u"ignored"_qs}, true},
    };
    for (const auto& [arguments, starts] : cases) {
        SCOPED_TRACE(arguments.join(u'|').toStdString());
        const auto process = start(arguments);
        if (starts) {
            EXPECT_TRUE(process->says(running)) << process->log().toStdString();
        } else {
            EXPECT_EQ(process->end(), 0);
            EXPECT_EQ(process->log(), u"orvane.start: ended: the launch token is missing or wrong\n"_qs);
        }
    }
}

TEST_F(Start, ASecondStartEndsAndBringsTheFirstForward) {
    const auto first = start();
    ASSERT_TRUE(first->says(running)) << first->log().toStdString();
    for (const QStringList& arguments : {QStringList{token, u"budi"_qs}, QStringList{}}) {
        const auto second = start(arguments);
        EXPECT_EQ(second->end(), 0);
        EXPECT_FALSE(second->says(running));
    }
    EXPECT_TRUE(first->says(u"brought forward by another start"_qs));

    const QTemporaryDir other{QCoreApplication::applicationDirPath() + u"/start-XXXXXX"_qs};
    install(other);
    settings::writeSettingsFile(other.filePath(u"user.tvk"_qs), good());
    const auto beside = start({token, u"budi"_qs}, other);
    EXPECT_TRUE(beside->says(running)) << "the program in another folder runs beside the first";
}

TEST_F(Start, AKilledProgramDoesNotBlockTheNextStart) {
    for (int i = 0; i < 3; ++i) {
        const auto process = start();
        ASSERT_TRUE(process->says(running)) << process->log().toStdString();
        process->kill();
    }
}

TEST_F(Start, AnAddressIsPingedAndANameIsNot) {
    const auto byAddress = start();
    EXPECT_TRUE(byAddress->says(running)) << byAddress->log().toStdString();
    EXPECT_TRUE(byAddress->log().contains(u"ping \"127.0.0.1\" answered"_qs)) << byAddress->log().toStdString();
    byAddress->kill();

    settings::DatabaseSettings named = good();
    named.server = u"localhost"_qs;
    write(named);
    const auto byName = start();
    EXPECT_TRUE(byName->says(running)) << byName->log().toStdString();
    EXPECT_FALSE(byName->log().contains(u"ping"_qs));
}

TEST_F(Start, WrongSettingsEndInSilence) {
    const auto changed = [](auto member, auto value) {
        settings::DatabaseSettings settings = good();
        settings.*member = value;
        return settings;
    };
    using Settings = settings::DatabaseSettings;
    const Settings cases[] = {
        changed(&Settings::user, u"nobody"_qs),
        changed(&Settings::password, u"wrong"_qs),
        changed(&Settings::database, u"nowhere"_qs),
        changed(&Settings::server, u"no-such-host.invalid"_qs),
        // A broadcast address: this machine refuses to send there, nothing leaves it.
        changed(&Settings::server, u"255.255.255.255"_qs),
        changed(&Settings::port, quint16(1)),
    };
    for (const Settings& settings : cases) {
        SCOPED_TRACE(settings.user.toStdString() + "@" + settings.server.toStdString());
        write(settings);
        QElapsedTimer clock;
        clock.start();
        const auto process = start();
        EXPECT_EQ(process->end(), 0);
        EXPECT_TRUE(process->log().endsWith(u"ended: no session with the database\n"_qs))
            << process->log().toStdString();
        EXPECT_LT(clock.elapsed(), 15'000);
    }
}

TEST_F(Start, ADamagedSettingsFileEndsInSilence) {
    const settings::DatabaseSettings right = good();
    const QStringList fields{right.user, right.server, right.password, right.database, QString::number(right.port)};
    QStringList texts{u""_qs, u"\n\n"_qs, u"a b c d e"_qs};
    for (int damaged = 0; damaged < fields.size(); ++damaged) {
        QStringList encoded;
        for (const QString& field : fields)
            encoded << settings::EncodeField(field);
        // A value without its marks, as another tool would write it.
        encoded[damaged] = QString::fromLatin1(fields[damaged].toUtf8().toBase64());
        texts << encoded.join(u' ');
        encoded.removeAt(damaged);
        texts << encoded.join(u' ');
    }
    for (const QString& text : texts) {
        SCOPED_TRACE(text.toStdString());
        writeText(text);
        const auto process = start();
        EXPECT_EQ(process->end(), 0);
        EXPECT_TRUE(process->log().endsWith(u"ended: no session with the database\n"_qs))
            << process->log().toStdString();
    }
    QFile::remove(path());
    EXPECT_EQ(start()->end(), 0);
}

TEST_F(Start, AnApplicationDatabaseOutOfReachLeavesARunningFrame) {
    settings::DatabaseSettings alone = good();
    alone.database = s_database->appSettings().database;
    write(alone);
    const auto process = start();
    EXPECT_TRUE(process->says(u"fault"_qs)) << process->log().toStdString();
    EXPECT_EQ(process->end(3'000), std::nullopt) << process->log().toStdString();
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
