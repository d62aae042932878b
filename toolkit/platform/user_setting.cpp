#include "toolkit/platform/user_setting.h"

#include "toolkit/platform/log.h"

#include <QFile>
#include <QStandardPaths>

namespace platform {

QString userSettingFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvane");
}

QString ReadUserSetting(const QString& name, const QString& folder) {
    QFile file(folder + QStringLiteral("/user.conf"));
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(platformLog) << "user setting" << name << "not read:" << file.fileName() << file.errorString();
        return {};
    }
    const QString start = name + u'=';
    const QString text = QString::fromUtf8(file.readAll());
    for (QStringView line : QStringView(text).split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.startsWith(start))
            return line.sliced(start.size()).toString();
    }
    qCWarning(platformLog) << "user setting" << name << "not in" << file.fileName();
    return {};
}

} // namespace platform
