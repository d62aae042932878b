#pragma once

#include "toolkit/db/connection.h"

namespace db {

/// Stands in for the client library's own waits while one call of it, or one whole statement, is under way: looks up
/// from the socket several times a second to tell the watch, and gives up where the server shows no sign of life. A
/// server that is at work may take as long as it likes. Inner waits of a connection share what is known of the
/// outermost one, which stands for the statement.
class Connection::Wait final {
public:
    /// Connecting ends after Waits::connect, counted from the beginning, and forgets why a wait for the session before
    /// was given up; only a person's wish lasts.
    enum class Phase { Connecting, Sending, Answering };

    /// Throws Fault where the thread awaits an answer already, also of another connection: what an event asks for that
    /// arrives meanwhile does not belong into the middle of a handler.
    Wait(Connection& connection, Phase phase);
    ~Wait();
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    /// From now on the library waits through the innermost object of its thread.
    static void install(st_mysql* session);

    /// The fault as it is to be told: in place of the library's words those of whoever ended the wait.
    [[nodiscard]] Fault judged(const Fault& fault) const;
    /// The server was asked to end the statement; the session lives on.
    [[nodiscard]] bool isKilled() const { return m_outcome.killed; }

private:
    using Clock = std::chrono::steady_clock;
    struct Outcome {
        bool told = false;
        bool cancelled = false;
        bool killed = false;
        int idleLooks = 0;
        QString givenUp; ///< why; empty while the wait goes on
    };

    static int ready(int socket, char isRead, int milliseconds);
    [[nodiscard]] bool isGivenUp() const { return !m_outcome.givenUp.isEmpty(); }
    [[nodiscard]] int await(int socket, short events);
    void tellWatch();
    void look();

    static thread_local Wait* s_innermost;

    Connection& m_connection;
    const Phase m_phase;
    const Clock::time_point m_began = Clock::now();
    Wait* const m_around; ///< of this thread, maybe of another connection
    Wait* const m_outer;  ///< of this connection
    Outcome m_own;
    Outcome& m_outcome;
};

} // namespace db
