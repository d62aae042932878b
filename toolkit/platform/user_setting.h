#pragma once

#include <QString>

namespace platform {

/// The folder "orvane" in the user's configuration folder.
[[nodiscard]] QString userSettingFolder();

/// One text value of the current user, kept as a line "name=value" of the UTF-8 file user.conf in `folder`. The suite
/// writes it, nobody here does. The name counts in any case; blanks around name, "=" and value and a pair of quotes
/// around the value do not count. Empty where there is no file or no such line; a file that is there and cannot be
/// read may hold a limit, so it throws std::runtime_error.
[[nodiscard]] QString ReadUserSetting(const QString& name, const QString& folder = userSettingFolder());

} // namespace platform
