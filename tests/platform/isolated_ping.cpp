#include "toolkit/platform/host.h"

#include <linux/capability.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitNotPossible = 77;
const QString address = u"127.0.0.1"_s;

bool writeFile(const char* path, const std::string& text) {
    std::ofstream file(path);
    file << text << std::flush;
    return file.good();
}

/// Puts this process into a network of its own, which holds nothing but a loopback, and lets it cover files unseen.
bool isolate() {
    const std::string uid = std::to_string(::getuid());
    const std::string gid = std::to_string(::getgid());
    if (::unshare(CLONE_NEWNET | CLONE_NEWNS) != 0) {
        if (::unshare(CLONE_NEWUSER | CLONE_NEWNET | CLONE_NEWNS) != 0)
            return false;
        writeFile("/proc/self/setgroups", "deny");
        if (!writeFile("/proc/self/uid_map", "0 " + uid + " 1") || !writeFile("/proc/self/gid_map", "0 " + gid + " 1"))
            return false;
    }
    const platform::Descriptor control(::socket(AF_INET, SOCK_DGRAM, 0));
    ifreq loopback{};
    std::strcpy(loopback.ifr_name, "lo");
    loopback.ifr_flags = IFF_UP;
    return ::ioctl(control.get(), SIOCSIFFLAGS, &loopback) == 0;
}

bool dropCapabilities() {
    __user_cap_header_struct header{.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
    const __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3]{};
    return ::syscall(SYS_capset, &header, none) == 0;
}

/// As on a machine without the program: what lies in its place cannot be run.
bool hidePing() {
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("/dev/null", "/usr/bin/ping", nullptr, MS_BIND, nullptr) == 0;
}

bool ignoreEchoes() {
    return writeFile("/proc/sys/net/ipv4/icmp_echo_ignore_all", "1");
}

// A new network allows datagram sockets to nobody, so that they are the case to ask for.
bool prepare(const std::string& mode) {
    if (!isolate())
        return false;
    if (mode == "datagram")
        return writeFile("/proc/sys/net/ipv4/ping_group_range", "0 0") && dropCapabilities();
    if (mode == "missing" && !hidePing())
        return false;
    if (mode == "deaf" && !ignoreEchoes())
        return false;
    return (mode != "refused" && mode != "missing" && mode != "deaf") || dropCapabilities();
}

/// From here on nobody answers, but one reply that came too late still waits in the socket.
bool silence(platform::PingSocket& ping) {
    return !ping.PingHost(address, std::chrono::milliseconds(0)) && ignoreEchoes();
}

} // namespace

// isolated_ping raw|datagram|refused|missing|deaf|silent: pings its loopback where only the named kind of socket may be
// had, where none may be had, where the installed program is missing too or gets no answer, or where nobody answers.
// isolated_ping run COMMAND...: runs the command there.
int main(int argc, char** argv) {
    const std::string mode = argc >= 2 ? argv[1] : "";
    if (!prepare(mode))
        return exitNotPossible;
    if (mode == "run")
        return ::execvp(argv[2], argv + 2);
    try {
        platform::PingSocket ping;
        if (mode == "silent" && !silence(ping))
            return exitNotPossible;
        std::cout << (ping.PingHost(address) ? "answered" : "silent") << std::endl;
    } catch (const platform::PingFault& fault) {
        std::cout << fault.what() << std::endl;
    }
}
