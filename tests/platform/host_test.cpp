#include "toolkit/platform/host.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <string>

using namespace Qt::StringLiterals;

using namespace platform;

namespace {

/// What the isolated program says of a network that is set up as `mode` tells, "not possible" where the system grants
/// this user no network of its own.
std::string isolatedPing(const char* mode) {
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u"/isolated_ping"_s, {QString::fromLatin1(mode)});
    process.waitForFinished();
    constexpr int notPossible = 77;
    return process.exitCode() == notPossible ? "not possible" : process.readAllStandardOutput().trimmed().toStdString();
}

} // namespace

TEST(IsIpAddress, TakesFourGroupsUpTo255) {
    for (const char16_t* text : {u"127.0.0.1", u"255.255.255.255", u"001.010.000.099"})
        EXPECT_TRUE(IsIpAddress(QString::fromUtf16(text))) << QString::fromUtf16(text).toStdString();
    for (const char16_t* text : {u"", u"localhost", u"1.2.3", u"1.2.3.", u".1.2.3", u"1..2.3", u"1.2.3.4.",
                                 u"1.2.3.4.5", u"256.1.1.1", u"1.1.1.999", u"1.1.1.0001", u" 1.1.1.1", u"1.1.1.1\n",
                                 u"-1.1.1.1", u"+1.1.1.1", u"1.1.1.a", u"1,1,1,1", u"...", u"\u0661.1.1.1"})
        EXPECT_FALSE(IsIpAddress(QString::fromUtf16(text))) << QString::fromUtf16(text).toStdString();
}

// But for these two, names that no resolver asks a server for.
TEST(ResolveHost, GivesTheAddressOfANameTheNameOfAnAddressAndTheTextBackWhereNothingIsFound) {
    EXPECT_EQ(ResolveHost(u"localhost"_s).toStdString(), "127.0.0.1");
    const QString name = ResolveHost(u"127.0.0.1"_s);
    EXPECT_FALSE(IsIpAddress(name)) << name.toStdString();
    EXPECT_EQ(ResolveHost(name).toStdString(), "127.0.0.1");
    for (const QString& text : {QString(), QString(300, u'a'), u"a..b"_s, u"256.256.256.256"_s})
        EXPECT_EQ(ResolveHost(text), text) << text.toStdString();
}

TEST(PingSocket, EndsAtOnceWhereNothingCanBeSent) {
    std::unique_ptr<PingSocket> ping;
    try {
        ping = std::make_unique<PingSocket>();
    } catch (const PingFault&) {
        GTEST_SKIP() << "this user may not ping";
    }
    QElapsedTimer timer;
    timer.start();
    for (const char16_t* address : {u"", u"aaa", u"127.0.0.1.1", u"255.255.255.255"})
        EXPECT_FALSE(ping->PingHost(QString::fromUtf16(address)));
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_TRUE(ping->PingHost(u"127.9.8.7"_s));
}

TEST(PingSocket, WorksOverEitherKindOfSocketOrTheInstalledPingAndGivesADeadAddressUpAtTheTimeOut) {
    if (isolatedPing("raw") == "not possible")
        GTEST_SKIP() << "no network of its own for this user";
    EXPECT_EQ(isolatedPing("raw"), "answered");
    EXPECT_EQ(isolatedPing("datagram"), "answered");
    EXPECT_EQ(isolatedPing("refused"), "answered");
    EXPECT_EQ(isolatedPing("deaf"), "silent");
    EXPECT_EQ(isolatedPing("missing"), "Unable to get ping handle");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(isolatedPing("silent"), "silent");
    EXPECT_GE(timer.elapsed(), 1000);
    EXPECT_LT(timer.elapsed(), 5000);
}
