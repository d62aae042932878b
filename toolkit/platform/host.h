#pragma once

#include "toolkit/fault/fault.h"
#include "toolkit/platform/descriptor.h"

#include <QString>

#include <netinet/in.h>

#include <chrono>

namespace platform {

/// Four groups of one to three digits, each at most 255, parted by points.
[[nodiscard]] bool IsIpAddress(const QString& text);

/// The first IPv4 address of a host name in dotted form; for a dotted address the host's name. Gives `text` back where
/// nothing is found. Waits as long as the system's resolver does.
[[nodiscard]] QString ResolveHost(const QString& text);

/// No echo can be sent from this process; the text is meant for the user.
class PingFault final : public fault::Fault {
public:
    using fault::Fault::Fault;
};

/// What to tell the user when neither kind of socket opens, from the errno of the datagram and of the raw try: no
/// sockets to be had at all, no ICMP on this machine, or no permission.
[[nodiscard]] const char* pingFailureText(int datagramError, int rawError);

/// The handle for ICMP echoes: an unprivileged datagram socket where the machine allows it, a raw one else, and the
/// installed ping where this user is refused both.
class PingSocket final {
public:
    /// Throws PingFault.
    PingSocket();

    /// Sends one echo of 100 bytes with a time-to-live of 64 to a dotted address and waits for its reply. False where
    /// the address is none, the system refuses to send, or no reply comes in time.
    [[nodiscard]] bool PingHost(const QString& address,
                                std::chrono::milliseconds timeout = std::chrono::milliseconds(1000));

private:
    void takeProgram(const char* failure);
    [[nodiscard]] bool pingBySocket(in_addr address, std::chrono::milliseconds timeout);

    Descriptor m_socket;
    QString m_program; ///< sends the echo where there is no socket
    bool m_isRaw = false;
    quint16 m_sequence = 0;
};

} // namespace platform
