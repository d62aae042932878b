#pragma once

#include <QString>

#include <netinet/in.h>

#include <chrono>

namespace platform {

/// The installed ping, which may send echoes where its caller may not; empty where there is none.
[[nodiscard]] QString installedPing();

/// Whether this process may send echoes through the program.
[[nodiscard]] bool mayPing(const QString& program);

/// One echo of 100 bytes with a time-to-live of 64, sent by that program. True where it reports the reply.
[[nodiscard]] bool pingByProgram(const QString& program, in_addr address, std::chrono::milliseconds timeout);

} // namespace platform
