#pragma once

#include "base/audit.h"
#include "base/language.h"
#include "base/messages.h"
#include "base/session.h"

#include <QWidget>

namespace base {

/// All that a screen borrows from the frame. The frame owns it and outlives every screen.
struct Services {
    /// The message dialogs become children of owner, whose captions they share.
    Services(Clock clock, QObject* owner) : session(std::move(clock)), messages(session, language, owner) {}

    /// A note "caption - action [what]" in the audit log, by the current user at this moment. Throws db::Fault.
    void log(const QWidget& screen, const QString& action, const QString& what);

    Session session;
    Language language{session};
    Messages messages;
    AuditLog audit{session};
};

} // namespace base
