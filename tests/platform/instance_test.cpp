#include "tests/platform/descriptor_limit.h"
#include "toolkit/platform/instance.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <system_error>
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

    void letGo() {
        m_process.write("g");
        m_process.waitForBytesWritten();
    }

    /// The next line of its output, or "ended" or "silent" where none comes.
    std::string line() {
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(5000))
                return m_process.state() == QProcess::NotRunning ? "ended" : "silent";
        return m_process.readLine().trimmed().toStdString();
    }

    /// "ended 0" for a good end.
    std::string end() {
        m_process.waitForFinished();
        return (m_process.exitStatus() == QProcess::NormalExit ? "ended " : "crashed ") +
               std::to_string(m_process.exitCode());
    }

    void killHard() {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

std::string started(Start& start) {
    start.letGo();
    return start.line();
}

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

TEST_F(Instances, ASecondStartEndsAndRaisesTheFirst) {
    const QString program = installed(QStringLiteral("a"));
    Start first(program);
    EXPECT_EQ(started(first), "first");
    for (int again = 0; again < 3; ++again) {
        Start second(program);
        EXPECT_EQ(started(second), "second");
        EXPECT_EQ(second.end(), "ended 0");
        EXPECT_EQ(first.line(), "raised");
    }
}

TEST_F(Instances, AnotherFolderRunsBesideAndALinkToTheSameFileDoesNot) {
    const QString program = installed(QStringLiteral("a"));
    const QString link = m_root.filePath(QStringLiteral("link"));
    QFile::link(program, link);
    Start first(program);
    Start elsewhere(installed(QStringLiteral("b")));
    Start linked(link);
    EXPECT_EQ(started(first), "first");
    EXPECT_EQ(started(elsewhere), "first");
    EXPECT_EQ(started(linked), "second");
    EXPECT_EQ(first.line(), "raised");
}

TEST_F(Instances, AKilledOneDoesNotBlockTheNextStart) {
    const QString program = installed(QStringLiteral("a"));
    for (int again = 0; again < 5; ++again) {
        Start killed(program);
        ASSERT_EQ(started(killed), "first");
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
            start->letGo();
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
    first.ReleaseInstance();
    EXPECT_FALSE(second.CheckPreviousInstance());
}

TEST_F(Instances, TwoRoadsToOneFileAreOneProgram) {
    const QString program = installed(QStringLiteral("a"));
    QFile::link(m_root.filePath(QStringLiteral("a")), m_root.filePath(QStringLiteral("b")));
    InstanceGuard first(program);
    EXPECT_FALSE(first.CheckPreviousInstance());
    for (const QString& road : {QStringLiteral("b/program"), QStringLiteral("a/../a/program")})
        EXPECT_TRUE(InstanceGuard(m_root.filePath(road)).CheckPreviousInstance()) << road.toStdString();
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

TEST_F(Instances, WithoutASocketTheSystemsErrorIsRaised) {
    InstanceGuard guard(m_root.filePath(QStringLiteral("program")));
    // The sanitizer looks at a type through a pipe when it meets it first, which the limit would forbid.
    ASSERT_EQ(std::system_error(EIO, std::system_category(), "seen").code().value(), EIO);
    try {
        const NoMoreDescriptors limit;
        static_cast<void>(guard.CheckPreviousInstance());
        FAIL() << "went on";
    } catch (const std::system_error& fault) {
        EXPECT_EQ(fault.code().value(), EMFILE);
    }
}
