#pragma once

#include "base/session.h"
#include "toolkit/platform/host.h"

namespace frame {

/// Reads the settings file of `folder`, checks that the server answers, and opens both sessions. Throws at the first
/// thing that is missing or wrong; what was opened before stays open.
void openSessions(const QString& folder, platform::PingSocket& ping, base::Session& session);

} // namespace frame
