#include "toolkit/platform/ping_program.h"

#include <QFileInfo>
#include <QProcess>

#include <arpa/inet.h>

#include <array>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Beyond the wait for the reply, for a busy machine to start and end the program.
constexpr std::chrono::seconds slack(5);

QString dotted(in_addr address) {
    std::array<char, INET_ADDRSTRLEN> text{};
    inet_ntop(AF_INET, &address, text.data(), text.size());
    return QString::fromLatin1(text.data());
}

constexpr int answered = 0;
constexpr int notSent = 2;

/// What the program said of one echo.
int exitCode(const QString& program, in_addr address, std::chrono::milliseconds timeout) {
    const QString seconds = QString::number(double(timeout.count()) / 1000);
    QProcessEnvironment environment;
    environment.insert(u"LC_ALL"_s, u"C"_s);
    QProcess ping;
    ping.setProcessEnvironment(environment);
    ping.setStandardInputFile(QProcess::nullDevice());
    ping.setStandardOutputFile(QProcess::nullDevice());
    ping.setStandardErrorFile(QProcess::nullDevice());
    ping.start(program, {u"-n"_s, u"-q"_s, u"-c"_s, u"1"_s, u"-s"_s, u"100"_s, u"-p"_s, u"aa"_s, u"-t"_s, u"64"_s,
                         u"-W"_s, seconds, dotted(address)});
    const bool ended = ping.waitForFinished(int((timeout + slack).count()));
    return ended && ping.exitStatus() == QProcess::NormalExit ? ping.exitCode() : notSent;
}

} // namespace

// Fixed places: a search path is the caller's to set.
QString installedPing() {
    for (const QString& path : {u"/usr/bin/ping"_s, u"/bin/ping"_s})
        if (QFileInfo(path).isFile() && QFileInfo(path).isExecutable())
            return path;
    return {};
}

bool mayPing(const QString& program) {
    return exitCode(program, {.s_addr = htonl(INADDR_LOOPBACK)}, std::chrono::milliseconds(1000)) != notSent;
}

bool pingByProgram(const QString& program, in_addr address, std::chrono::milliseconds timeout) {
    return exitCode(program, address, timeout) == answered;
}

} // namespace platform
