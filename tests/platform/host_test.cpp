#include "toolkit/platform/host.h"

#include <QElapsedTimer>
#include <QProcess>

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <string>

using namespace platform;

namespace {

/// What the isolated program says of a network that is set up as `mode` tells, "not possible" where the system grants
/// this user no network of its own.
std::string isolatedPing(const char* mode) {
    QProcess process;
    process.start(QStringLiteral(ISOLATED_PING), {QString::fromLatin1(mode)});
    process.waitForFinished();
    constexpr int notPossible = 77;
    return process.exitCode() == notPossible ? "not possible" : process.readAllStandardOutput().trimmed().toStdString();
}

} // namespace

TEST(IsIpAddress, TakesFourGroupsUpTo255) {
    const std::pair<const char16_t*, bool> cases[] = {
        {u"127.0.0.1", true},   {u"0.0.0.0", true},    {u"255.255.255.255", true}, {u"001.010.000.099", true},
        {u"", false},           {u"localhost", false}, {u"1.2.3", false},          {u"1.2.3.", false},
        {u".1.2.3", false},     {u"1..2.3", false},    {u"1.2.3.4.", false},       {u"1.2.3.4.5", false},
        {u"256.1.1.1", false},  {u"1.1.1.256", false}, {u"1.1.1.999", false},      {u"0001.1.1.1", false},
        {u"1.1.1.0001", false}, {u" 1.1.1.1", false},  {u"1.1.1.1 ", false},       {u"1.1.1.1\n", false},
        {u"-1.1.1.1", false},   {u"+1.1.1.1", false},  {u"1.1.1.a", false},        {u"1,1,1,1", false},
        {u"...", false},        {u"1", false},         {u"\u0661.1.1.1", false},   {u"0x7f.0.0.1", false},
    };
    for (const auto& [text, isAddress] : cases)
        EXPECT_EQ(IsIpAddress(QString::fromUtf16(text)), isAddress) << QString::fromUtf16(text).toStdString();
}

TEST(ResolveHost, GivesTheAddressOfANameAndTheNameOfAnAddress) {
    EXPECT_EQ(ResolveHost(QStringLiteral("localhost")).toStdString(), "127.0.0.1");
    const QString name = ResolveHost(QStringLiteral("127.0.0.1"));
    EXPECT_FALSE(IsIpAddress(name)) << name.toStdString();
    EXPECT_EQ(ResolveHost(name).toStdString(), "127.0.0.1");
}

// Names that no resolver asks a server for.
TEST(ResolveHost, GivesTheTextBackWhereNothingIsFound) {
    for (const QString& text :
         {QString(), QString(300, u'a'), QStringLiteral("a..b"), QStringLiteral("256.256.256.256")})
        EXPECT_EQ(ResolveHost(text), text) << text.toStdString();
}

TEST(PingFailureText, TellsTheThreeReasonsApart) {
    const char* const sockets = "Error initialising Winsock";
    const char* const protocol = "Error loading dll functions";
    const char* const permission = "Unable to get ping handle";
    const std::tuple<int, int, const char*> cases[] = {
        {EAFNOSUPPORT, EAFNOSUPPORT, sockets},
        {EMFILE, EMFILE, sockets},
        {EACCES, ENFILE, sockets},
        {ENOBUFS, EPERM, sockets},
        {EPROTONOSUPPORT, EPROTONOSUPPORT, protocol},
        {EPROTONOSUPPORT, ESOCKTNOSUPPORT, protocol},
        {EACCES, EPERM, permission},
        {EPROTONOSUPPORT, EPERM, permission},
        {EACCES, EPROTONOSUPPORT, permission},
        {EIO, EIO, permission},
    };
    for (const auto& [datagram, raw, text] : cases)
        EXPECT_STREQ(pingFailureText(datagram, raw), text) << datagram << ' ' << raw;
}

TEST(PingSocket, HearsThisMachineAndEndsAtOnceWhereNothingCanBeSent) {
    std::unique_ptr<PingSocket> ping;
    try {
        ping = std::make_unique<PingSocket>();
    } catch (const PingUnavailable&) {
        GTEST_SKIP() << "this user may not ping";
    }
    QElapsedTimer timer;
    timer.start();
    for (const char16_t* address : {u"127.0.0.1", u"127.9.8.7"})
        EXPECT_TRUE(ping->PingHost(QString::fromUtf16(address)));
    for (const char16_t* address : {u"", u"aaa", u"127.0.0.1.1", u"255.255.255.255"})
        EXPECT_FALSE(ping->PingHost(QString::fromUtf16(address)));
    EXPECT_LT(timer.elapsed(), 500);
    EXPECT_FALSE(ping->PingHost(QStringLiteral("127.0.0.1"), std::chrono::milliseconds(0)));
    EXPECT_TRUE(ping->PingHost(QStringLiteral("127.0.0.1"))) << "a reply that came late is not taken for this one";
}

TEST(PingSocket, WorksOverEitherKindOfSocketAndGivesADeadAddressUpAtTheTimeOut) {
    const std::string raw = isolatedPing("raw");
    if (raw == "not possible")
        GTEST_SKIP() << "no network of its own for this user";
    EXPECT_EQ(raw.substr(0, 9), "answered ");
    EXPECT_EQ(isolatedPing("datagram").substr(0, 9), "answered ");
    EXPECT_EQ(isolatedPing("denied"), "Unable to get ping handle");
    const std::string dead = isolatedPing("silent");
    ASSERT_EQ(dead.substr(0, 7), "silent ");
    const int milliseconds = std::stoi(dead.substr(7));
    EXPECT_GE(milliseconds, 1000);
    EXPECT_LT(milliseconds, 1500);
}
