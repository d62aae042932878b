#pragma once

#include "base/audit.h"
#include "base/language.h"
#include "base/messages.h"
#include "base/session.h"

namespace base {

/// All that a screen borrows from the frame. The frame owns it and outlives every screen.
struct Services {
    /// The message dialogs become children of owner, whose captions they share.
    Services(Clock clock, QObject* owner) : session(std::move(clock)), messages(session, language, owner) {}

    Session session;
    Language language{session};
    Messages messages;
    AuditLog audit{session};
};

} // namespace base
