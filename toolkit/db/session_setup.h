#pragma once

#include "toolkit/db/fault.h"

#include <QString>

#include <chrono>

struct st_mysql;

namespace db {

struct SessionIdentity;
enum class Encryption { WhereOffered, None };

/// What the client library, or the server through it, said last.
[[nodiscard]] Fault faultOf(st_mysql* session, const QString& sql = {});

/// How the session is going to be opened: over TCP, in UTF-8, with what proves the user without giving the password
/// away.
void setOptions(st_mysql* session, std::chrono::seconds connect, Encryption encryption);

/// The library hands its waits over only where the socket does not wait by itself; through TLS it would.
void neverBlock(int socket);

/// Makes an open session notice a peer that is gone, within half a minute, also while nothing is sent.
void keepAlive(st_mysql* session);

/// The values of a session that its literals depend on.
struct SessionValues {
    QString client, connection, results; ///< character sets
    QString sqlMode;
};

/// What about the values makes texts in statements unsafe, in plain words; empty where nothing does.
[[nodiscard]] QString unsafeIn(const SessionValues& values);

/// Gives an open session the character set and the mode that statements are written for, and makes sure of them.
/// Throws Fault.
[[nodiscard]] SessionIdentity agreeOnSession(st_mysql* session);

} // namespace db
