#include "base/session.h"

#include "toolkit/platform/user_setting.h"

namespace base {

Clock systemClock() {
    return [] { return QDateTime::currentDateTime(); };
}

UserSettingReader systemUserSetting() {
    return [](const QString& name) { return platform::ReadUserSetting(name); };
}

} // namespace base
