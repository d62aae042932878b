#include "toolkit/db/wait.h"

#include "toolkit/db/session_setup.h"
#include "toolkit/db/statement_watch.h"

#include <mysql.h>
#include <poll.h>

#include <exception>
#include <utility>

using namespace Qt::StringLiterals;

namespace db {

namespace {

constexpr int sliceMilliseconds = 50;

} // namespace

thread_local Connection::Wait* Connection::Wait::s_innermost = nullptr;

Connection::Wait::Wait(Connection& connection, Phase phase) :
    m_connection(connection), m_phase(phase), m_around(s_innermost), m_outer(connection.m_wait),
    m_outcome(m_outer ? m_outer->m_outcome : m_own) {
    if (phase == Phase::Answering && m_around && !connection.m_isSecond)
        throw Fault(0, {}, u"The answer to another statement is still awaited"_s, {});
    if (phase == Phase::Connecting && !m_outcome.cancelled)
        m_outcome.givenUp.clear();
    s_innermost = connection.m_wait = this;
}

Connection::Wait::~Wait() {
    m_connection.m_wait = m_outer;
    s_innermost = m_around;
    if (!m_outer && m_outcome.told)
        m_connection.m_watch->ended();
}

void Connection::Wait::install(st_mysql* session) {
    mysql_optionsv(session, MARIADB_OPT_IO_WAIT, reinterpret_cast<void*>(&Wait::ready));
}

int Connection::Wait::ready(int socket, char isRead, int) {
    // Outside any wait there is only a farewell to send, which is not worth waiting for.
    if (!s_innermost)
        return 0;
    if (s_innermost->m_phase == Phase::Connecting)
        neverBlock(socket);
    // While it writes through TLS the library asks for reading where it means writing.
    const bool isWrite = !isRead || s_innermost->m_phase == Phase::Sending;
    try {
        return s_innermost->await(socket, isWrite ? POLLOUT : POLLIN);
    } catch (const std::exception&) {
        // No exception may pass through the library.
        return -1;
    }
}

int Connection::Wait::await(int socket, short events) {
    const Waits& waits = m_connection.m_waits;
    Clock::time_point nextLook = Clock::now() + waits.quiet;
    m_outcome.idleLooks = 0;
    while (!isGivenUp()) {
        pollfd descriptor{.fd = socket, .events = events, .revents = 0};
        if (const int count = poll(&descriptor, 1, sliceMilliseconds); count > 0)
            return count;
        if (m_phase == Phase::Connecting && Clock::now() - m_began >= waits.connect)
            return 0;
        tellWatch();
        if (m_phase != Phase::Connecting && Clock::now() >= nextLook) {
            look();
            nextLook = Clock::now() + waits.quiet;
        }
    }
    return 0;
}

void Connection::Wait::tellWatch() {
    StatementWatch* watch = m_connection.m_watch;
    if (!watch)
        return;
    m_outcome.told = true;
    if (watch->waiting() == StatementWatch::Wish::GoOn || m_outcome.cancelled)
        return;
    m_outcome.cancelled = true;
    m_outcome.killed = m_phase == Phase::Answering && m_connection.killStatement();
    if (!m_outcome.killed)
        m_outcome.givenUp = watch->cancelled();
}

void Connection::Wait::look() {
    const Sign sign = m_connection.lookFromOutside();
    m_outcome.idleLooks = sign == Sign::Idle ? m_outcome.idleLooks + 1 : 0;
    if (sign == Sign::Silent)
        m_outcome.givenUp = u"The server has stopped answering"_s;
    else if (sign == Sign::Gone)
        m_outcome.givenUp = u"The server has ended the session"_s;
    else if (m_outcome.idleLooks > 1) // once, the answer may just have been on its way
        m_outcome.givenUp = u"The statement or its answer got lost on the way"_s;
}

Fault Connection::Wait::judged(const Fault& fault) const {
    if (m_outcome.cancelled)
        return {Fault::interrupted, u"70100"_s, m_connection.m_watch->cancelled(), fault.statement()};
    if (isGivenUp())
        return {fault.code(), fault.sqlState(), m_outcome.givenUp, fault.statement()};
    return fault;
}

} // namespace db
