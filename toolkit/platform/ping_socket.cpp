#include "toolkit/platform/host.h"
#include "toolkit/platform/log.h"
#include "toolkit/platform/ping_program.h"

#include <QByteArray>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/ip.h>
#include <netinet/ip_icmp.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>

namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

constexpr size_t dataLength = 100;
constexpr unsigned char dataByte = 0xAA;
constexpr int timeToLive = 64;
constexpr const char* refusedText = "Unable to get ping handle";

struct Echo {
    icmphdr header{};
    std::array<unsigned char, dataLength> data{};
};
static_assert(sizeof(Echo) == sizeof(icmphdr) + dataLength);

bool isOneOf(int error, std::initializer_list<int> errors) {
    return std::find(errors.begin(), errors.end(), error) != errors.end();
}

Descriptor icmpSocket(int type) {
    return Descriptor(::socket(AF_INET, type | SOCK_CLOEXEC | SOCK_NONBLOCK, IPPROTO_ICMP));
}

// The checksum of the Internet protocols: the complement of the sum of 16-bit words, carries added back.
quint16 checksum(const Echo& echo) {
    std::array<quint16, sizeof(Echo) / 2> words{};
    std::memcpy(words.data(), &echo, sizeof echo);
    quint32 sum = 0;
    for (const quint16 word : words)
        sum += word;
    while (sum > 0xFFFF)
        sum = (sum & 0xFFFF) + (sum >> 16);
    return quint16(~sum);
}

Echo request(quint16 sequence) {
    Echo echo;
    echo.header.type = ICMP_ECHO;
    echo.header.un.echo.id = htons(quint16(::getpid()));
    echo.header.un.echo.sequence = htons(sequence);
    echo.data.fill(dataByte);
    echo.header.checksum = checksum(echo);
    return echo;
}

/// The ICMP header of a received packet; a raw socket delivers the IP header in front of it.
std::optional<icmphdr> icmpHeader(std::span<const unsigned char> packet, bool hasIpHeader) {
    const size_t offset = hasIpHeader && !packet.empty() ? (packet[0] & 0x0FU) * 4 : 0;
    icmphdr header{};
    if (packet.size() < offset + sizeof header)
        return std::nullopt;
    std::memcpy(&header, packet.data() + offset, sizeof header);
    return header;
}

/// False once the time is over; true means that a read is worth a try.
bool waitReadable(int fd, Clock::time_point deadline) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0)
        return false;
    pollfd entry{.fd = fd, .events = POLLIN, .revents = 0};
    return ::poll(&entry, 1, int(left.count())) != 0;
}

/// The echo a socket waits for. A datagram socket's identifier is the system's own, which also sorts its replies; a
/// raw socket sees every ICMP packet of the machine, on loopback its own request too.
struct Awaited {
    icmphdr request;
    bool isRaw;

    bool isAnsweredBy(const icmphdr& header) const {
        return header.type == ICMP_ECHOREPLY && header.un.echo.sequence == request.un.echo.sequence &&
               (!isRaw || header.un.echo.id == request.un.echo.id);
    }
};

bool awaitReply(int fd, const Awaited& awaited, Clock::time_point deadline) {
    while (waitReadable(fd, deadline)) {
        std::array<unsigned char, 1024> packet{};
        const ssize_t length = ::recv(fd, packet.data(), packet.size(), 0);
        if (length < 0 && !isOneOf(errno, {EAGAIN, EINTR}))
            return false;
        const auto received = std::span<const unsigned char>(packet).first(size_t(std::max<ssize_t>(length, 0)));
        const auto header = icmpHeader(received, awaited.isRaw);
        if (header && awaited.isAnsweredBy(*header))
            return true;
    }
    return false;
}

} // namespace

const char* pingFailureText(int datagramError, int rawError) {
    for (const int error : {datagramError, rawError})
        if (isOneOf(error, {EAFNOSUPPORT, EMFILE, ENFILE, ENOBUFS, ENOMEM}))
            return "Error initialising Winsock";
    const auto isUnknown = [](int error) {
        return isOneOf(error, {EPROTONOSUPPORT, ESOCKTNOSUPPORT, EPROTOTYPE, EINVAL});
    };
    return isUnknown(datagramError) && isUnknown(rawError) ? "Error loading dll functions" : refusedText;
}

PingSocket::PingSocket() : m_socket(icmpSocket(SOCK_DGRAM)) {
    const int datagramError = errno;
    if (!m_socket) {
        m_isRaw = true;
        m_socket = icmpSocket(SOCK_RAW);
    }
    if (!m_socket)
        takeProgram(pingFailureText(datagramError, errno));
    else if (::setsockopt(m_socket.get(), IPPROTO_IP, IP_TTL, &timeToLive, sizeof timeToLive) != 0)
        throw PingFault(pingFailureText(errno, errno));
}

void PingSocket::takeProgram(const char* failure) {
    // Out of sockets, or without ICMP, the program would get no further.
    if (failure == std::string_view(refusedText))
        m_program = installedPing();
    if (m_program.isEmpty() || !mayPing(m_program))
        throw PingFault(failure);
    qCInfo(platformLog) << "no socket for echoes; they go through" << m_program;
}

bool PingSocket::PingHost(const QString& address, std::chrono::milliseconds timeout) {
    in_addr host{};
    if (inet_aton(address.toLatin1().constData(), &host) == 0)
        return false;
    const bool answered = m_program.isEmpty() ? pingBySocket(host, timeout) : pingByProgram(m_program, host, timeout);
    if (!answered)
        qCWarning(platformLog) << "no echo from" << address;
    return answered;
}

bool PingSocket::pingBySocket(in_addr address, std::chrono::milliseconds timeout) {
    const Clock::time_point deadline = Clock::now() + timeout;
    sockaddr_in host{};
    host.sin_family = AF_INET;
    host.sin_addr = address;
    const Echo echo = request(++m_sequence);
    // Connected, the socket hears that host alone.
    return ::connect(m_socket.get(), reinterpret_cast<const sockaddr*>(&host), sizeof host) == 0 &&
           ::send(m_socket.get(), &echo, sizeof echo, MSG_NOSIGNAL) == ssize_t(sizeof echo) &&
           awaitReply(m_socket.get(), {echo.header, m_isRaw}, deadline);
}

} // namespace platform
