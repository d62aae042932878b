#pragma once

#include <QString>

namespace platform {

/// The folder "orvane" in the user's configuration folder.
[[nodiscard]] QString userSettingFolder();

/// One text value of the current user, kept as a line "name=value" of the UTF-8 file user.conf in `folder`. The value
/// comes back exactly as it stands behind the first "="; empty on any failure. The suite writes it, nobody here does.
[[nodiscard]] QString ReadUserSetting(const QString& name, const QString& folder = userSettingFolder());

} // namespace platform
