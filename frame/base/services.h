#pragma once

#include "frame/base/audit.h"
#include "frame/base/language.h"
#include "frame/base/messages.h"
#include "frame/base/session.h"

namespace frame {

/// All that a screen borrows from the frame. The frame owns it and outlives every screen.
struct Services {
    /// The message dialogs become children of owner, whose captions they share.
    Services(Clock clock, QObject* owner) : session(std::move(clock)), messages(session, language, owner) {}

    Session session;
    Language language{session};
    Messages messages;
    AuditLog audit{session};
};

} // namespace frame
