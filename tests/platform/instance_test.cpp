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
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

using platform::InstanceGuard;

namespace {

/// A copy of the program, and a link to it, in a folder that goes away with the case.
class Instances : public testing::Test {
protected:
    Instances() {
        QDir(m_root.path()).mkdir(u"a"_s);
        QFile::copy(QCoreApplication::applicationDirPath() + u"/instance_program"_s, m_program);
        QFile::link(m_program, m_link);
    }

    /// A process that waits for its first byte of input.
    static std::unique_ptr<QProcess> start(const QString& program, const QStringList& arguments = {}) {
        auto process = std::make_unique<QProcess>();
        process->start(program, arguments);
        process->waitForStarted();
        return process;
    }
    static void go(QProcess& process) {
        process.write("g");
        process.waitForBytesWritten();
    }
    static void kill(QProcess& process) {
        process.kill();
        process.waitForFinished();
    }
    /// The next line of its output, or "ended" and its exit code, or "silent".
    static std::string line(QProcess& process) {
        while (!process.canReadLine())
            if (!process.waitForReadyRead(5000))
                return process.state() == QProcess::NotRunning ? "ended " + std::to_string(process.exitCode())
                                                               : "silent";
        return process.readLine().trimmed().toStdString();
    }

    QTemporaryDir m_root;
    const QString m_program = m_root.filePath(u"a/program"_s);
    const QString m_link = m_root.filePath(u"link"_s);
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

/// Carries the action out as another user; what it makes stays that user's. For root alone.
template <typename Action>
void asStranger(Action action) {
    ASSERT_EQ(::seteuid(65534), 0);
    action();
    ASSERT_EQ(::seteuid(0), 0);
}

} // namespace

TEST_F(Instances, OfTenRacingStartsExactlyOneWinsAndItsKillingMakesWayForTheNextRace) {
    for (int race = 0; race < 5; ++race) {
        std::vector<std::unique_ptr<QProcess>> starts;
        for (int i = 0; i < 10; ++i)
            starts.push_back(start(m_program));
        for (const auto& each : starts)
            go(*each);
        std::vector<std::string> lines;
        for (const auto& each : starts)
            lines.push_back(line(*each));
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "first"), 1);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "second"), 9);
        for (const auto& each : starts)
            kill(*each);
    }
}

TEST_F(Instances, APlaceIsOfTheFileFreeOnceGivenUpAndAStarterThatNeverHeldItTakesNothingAway) {
    InstanceGuard first(m_program);
    InstanceGuard second(m_link);
    EXPECT_FALSE(first.CheckPreviousInstance());
    EXPECT_TRUE(second.CheckPreviousInstance());
    second.ReleaseInstance();
    EXPECT_TRUE(second.CheckPreviousInstance());
    first.ReleaseInstance();
    EXPECT_FALSE(second.CheckPreviousInstance());
}

TEST_F(Instances, StartsBeforeListeningAreToldThen) {
    InstanceGuard first(m_program);
    ASSERT_FALSE(first.CheckPreviousInstance());
    for (int start = 0; start < 100; ++start)
        ASSERT_TRUE(InstanceGuard(m_program).CheckPreviousInstance());
    int raised = 0;
    QObject::connect(&first, &InstanceGuard::raiseRequested, [&raised] { ++raised; });
    QCoreApplication::processEvents();
    EXPECT_EQ(raised, 0);
    first.listen();
    QCoreApplication::processEvents();
    EXPECT_GE(raised, 1);
}

TEST_F(Instances, AnotherUserRunsBesideAndNeitherKeepsFromStartingNorRaises) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "one user cannot become another";
    std::filesystem::permissions(m_root.path().toStdString(), std::filesystem::perms(0755));
    const auto own = start(m_program);
    go(*own);
    EXPECT_EQ(line(*own), "first");
    const QStringList asNobody{u"--reuid=nobody"_s, u"--clear-groups"_s, m_program};
    const auto other = start(u"setpriv"_s, asNobody);
    go(*other);
    EXPECT_EQ(line(*other), "first");
    const auto third = start(u"setpriv"_s, asNobody);
    go(*third);
    EXPECT_EQ(line(*third), "second");
    kill(*own);
    kill(*other);

    InstanceGuard guard(m_program);
    ASSERT_FALSE(guard.CheckPreviousInstance());
    int raised = 0;
    QObject::connect(&guard, &InstanceGuard::raiseRequested, [&raised] { ++raised; });
    guard.listen();
    socklen_t length = 0;
    const sockaddr_un place = heldPlace(length);
    asStranger([&] {
        const platform::Descriptor stranger(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
        EXPECT_EQ(::connect(stranger.get(), reinterpret_cast<const sockaddr*>(&place), length), 0);
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(raised, 0);
    EXPECT_TRUE(InstanceGuard(m_program).CheckPreviousInstance());
    QCoreApplication::processEvents();
    EXPECT_EQ(raised, 1);
}

TEST_F(Instances, AStrangerWhoTakesTheNameKeepsNobodyFromStarting) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "one user cannot become another";
    InstanceGuard guard(m_program);
    ASSERT_FALSE(guard.CheckPreviousInstance());
    socklen_t length = 0;
    const sockaddr_un place = heldPlace(length);
    guard.ReleaseInstance();
    const platform::Descriptor squatter(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
    ASSERT_EQ(::bind(squatter.get(), reinterpret_cast<const sockaddr*>(&place), length), 0);
    EXPECT_FALSE(guard.CheckPreviousInstance()) << "who does not listen";
    asStranger([&] { ASSERT_EQ(::listen(squatter.get(), 0), 0); });
    for (int start = 0; start < 3; ++start)
        EXPECT_FALSE(guard.CheckPreviousInstance()) << "who listens and lets the queue fill";
    guard.listen();
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
