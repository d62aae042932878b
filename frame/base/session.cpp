#include "frame/base/session.h"

#include "toolkit/platform/user_setting.h"

namespace frame {

Clock systemClock() {
    return [] { return QDateTime::currentDateTime(); };
}

UserSettingReader systemUserSetting() {
    return [](const QString& name) { return platform::ReadUserSetting(name); };
}

} // namespace frame
