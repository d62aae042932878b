// What a connection that waits does through a second, short session with the same server.

#include "toolkit/db/connection.h"
#include "toolkit/db/session_setup.h"
#include "toolkit/db/statement_watch.h"

using namespace Qt::StringLiterals;

namespace db {

/// Keeps the watch of the first session informed; what it wishes is for that one alone.
class Connection::Onlooker final : public StatementWatch {
public:
    explicit Onlooker(StatementWatch* watch) : m_watch(watch) {}
    Wish waiting() override {
        if (m_watch)
            static_cast<void>(m_watch->waiting());
        return Wish::GoOn;
    }
    void ended() override {}
    QString cancelled() const override { return {}; }

private:
    StatementWatch* m_watch;
};

void Connection::openSecond(Connection& second, Onlooker& onlooker) const {
    second.configure(m_settings, {.connect = m_waits.connect, .quiet = m_waits.connect});
    second.setWatch(&onlooker);
    second.m_isSecond = true;
    second.open();
}

Connection::Sign Connection::lookFromOutside() const {
    if (m_isSecond)
        return Sign::Silent;
    try {
        Onlooker onlooker(m_watch);
        Connection second;
        openSecond(second, onlooker);
        // Behind one address there may be several servers, and each counts its sessions by itself.
        if (second.m_identity.server != m_identity.server)
            return Sign::Unknown;
        Result found =
            second.query(u"select command from information_schema.processlist where id=%1"_s.arg(m_identity.number));
        if (!found.next())
            return Sign::Gone;
        return found.text(0) == u"Sleep" ? Sign::Idle : Sign::AtWork;
    } catch (const Fault& fault) {
        // A server that refuses, for want of free sessions say, is alive.
        return fault.isOfLibrary() ? Sign::Silent : Sign::Unknown;
    }
}

bool Connection::killStatement() const {
    try {
        Onlooker onlooker(m_watch);
        Connection second;
        openSecond(second, onlooker);
        if (second.m_identity.server != m_identity.server)
            return false;
        second.execute(u"kill query %1"_s.arg(m_identity.number));
        return true;
    } catch (const Fault&) {
        return false;
    }
}

} // namespace db
