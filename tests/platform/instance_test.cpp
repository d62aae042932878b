#include "toolkit/platform/instance.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using platform::InstanceGuard;

namespace {

/// One start of the instance program from a folder of its choice.
class Start final {
public:
    explicit Start(const QString& program) {
        m_process.start(program, QStringList());
        m_process.waitForStarted();
    }
    ~Start() {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    Start& go() {
        m_process.write("g");
        m_process.waitForBytesWritten();
        return *this;
    }
    /// The next line of its output, or "ended" and its exit code, or "silent".
    std::string line() {
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(5000))
                return m_process.state() == QProcess::NotRunning ? "ended " + std::to_string(m_process.exitCode())
                                                                 : "silent";
        return m_process.readLine().trimmed().toStdString();
    }
    void killHard() {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

/// Copies of the program in folders that go away with the case.
class Instances : public testing::Test {
protected:
    QString installed(const QString& folder) {
        const QString path = m_root.filePath(folder);
        QDir().mkpath(path);
        const QString program = path + QStringLiteral("/program");
        QFile::copy(QStringLiteral(INSTANCE_PROGRAM), program);
        return program;
    }

    QTemporaryDir m_root;
};

/// The address of the one instance socket that this process holds.
sockaddr_un heldPlace(socklen_t& length) {
    constexpr int highestDescriptor = 256;
    for (int fd = 3; fd < highestDescriptor; ++fd) {
        sockaddr_un address{};
        length = sizeof address;
        const bool isNamed = ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) == 0 &&
                             address.sun_family == AF_UNIX && length > sizeof(sa_family_t);
        if (isNamed)
            return address;
    }
    ADD_FAILURE() << "no instance socket";
    return {};
}

} // namespace

TEST_F(Instances, ASecondStartEndsAndRaisesTheFirstWhateverTheRoadToTheFile) {
    const QString program = installed(QStringLiteral("a"));
    QFile::link(program, m_root.filePath(QStringLiteral("link")));
    QFile::link(m_root.filePath(QStringLiteral("a")), m_root.filePath(QStringLiteral("b")));
    Start first(program), elsewhere(installed(QStringLiteral("c")));
    EXPECT_EQ(first.go().line(), "first");
    EXPECT_EQ(elsewhere.go().line(), "first") << "another folder runs beside";
    for (const char* road : {"a/program", "a/program", "link", "b/program", "a/../a/program"}) {
        Start second(m_root.filePath(QLatin1String(road)));
        EXPECT_EQ(second.go().line(), "second") << road;
        EXPECT_EQ(second.line(), "ended 0") << road;
        EXPECT_EQ(first.line(), "raised") << road;
    }
}

TEST_F(Instances, AKilledOneDoesNotBlockTheNextStart) {
    const QString program = installed(QStringLiteral("a"));
    for (int again = 0; again < 5; ++again) {
        Start killed(program);
        ASSERT_EQ(killed.go().line(), "first");
        killed.killHard();
    }
}

TEST_F(Instances, OfTenRacingStartsExactlyOneWins) {
    const QString program = installed(QStringLiteral("a"));
    for (int race = 0; race < 5; ++race) {
        std::vector<std::unique_ptr<Start>> starts;
        for (int i = 0; i < 10; ++i)
            starts.push_back(std::make_unique<Start>(program));
        for (const auto& start : starts)
            start->go();
        std::vector<std::string> lines;
        for (const auto& start : starts)
            lines.push_back(start->line());
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "first"), 1);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "second"), 9);
    }
}

TEST_F(Instances, APlaceGivenUpIsFreeAndAStarterThatNeverHeldItTakesNothingAway) {
    const QString path = m_root.filePath(QStringLiteral("no file needed"));
    InstanceGuard first(path);
    InstanceGuard second(path);
    EXPECT_FALSE(first.CheckPreviousInstance());
    EXPECT_TRUE(second.CheckPreviousInstance());
    second.ReleaseInstance();
    EXPECT_TRUE(second.CheckPreviousInstance());
    first.ReleaseInstance();
    EXPECT_FALSE(second.CheckPreviousInstance());
}

TEST_F(Instances, StartsBeforeListeningAreToldThenAndABusyHolderKeepsItsPlace) {
    const QString path = m_root.filePath(QStringLiteral("program"));
    InstanceGuard first(path);
    ASSERT_FALSE(first.CheckPreviousInstance());
    // More than the system queues for a process that does not read.
    constexpr int starts = 1000;
    for (int start = 0; start < starts; ++start)
        ASSERT_TRUE(InstanceGuard(path).CheckPreviousInstance());
    int raised = 0;
    QObject::connect(&first, &InstanceGuard::raiseRequested, [&raised] { ++raised; });
    QCoreApplication::processEvents();
    EXPECT_EQ(raised, 0);
    first.listen();
    QCoreApplication::processEvents();
    EXPECT_GE(raised, 1);
}

TEST_F(Instances, MessagesOfStrangersAreDropped) {
    InstanceGuard guard(m_root.filePath(QStringLiteral("program")));
    ASSERT_FALSE(guard.CheckPreviousInstance());
    int raised = 0;
    QObject::connect(&guard, &InstanceGuard::raiseRequested, [&raised] { ++raised; });
    guard.listen();
    socklen_t length = 0;
    const sockaddr_un place = heldPlace(length);
    const platform::Descriptor stranger(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    const auto say = [&](const std::string& message) {
        ASSERT_EQ(::sendto(stranger.get(), message.data(), message.size(), MSG_DONTWAIT,
                           reinterpret_cast<const sockaddr*>(&place), length),
                  ssize_t(message.size()));
        QCoreApplication::processEvents();
    };
    for (const std::string& message : {std::string(), std::string("rais"), std::string("RAISE"), std::string("raise!"),
                                       std::string("raise\0", 6), std::string(100000, 'r'), std::string(5, '\0')})
        say(message);
    EXPECT_EQ(raised, 0);
    say("raise");
    EXPECT_EQ(raised, 1);
}
