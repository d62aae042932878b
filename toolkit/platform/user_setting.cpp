#include "toolkit/platform/user_setting.h"

#include "toolkit/platform/log.h"

#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <stdexcept>

namespace platform {

namespace {

/// The content of the file; empty where there is none. A link counts as a file wherever it leads, and so does what a
/// closed folder hides.
QString contentOf(const QString& path) {
    std::error_code unknown;
    const std::filesystem::path name(path.toStdString());
    if (std::filesystem::symlink_status(name, unknown).type() == std::filesystem::file_type::not_found)
        return {};
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError)
        throw std::runtime_error(QStringLiteral("%1: %2").arg(path, file.errorString()).toStdString());
    return QString::fromUtf8(content);
}

QStringView withoutQuotes(QStringView value) {
    for (const char16_t quote : {u'"', u'\''})
        if (value.size() >= 2 && value.front() == quote && value.back() == quote)
            return value.sliced(1).chopped(1);
    return value;
}

} // namespace

QString userSettingFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/orvane");
}

QString ReadUserSetting(const QString& name, const QString& folder) {
    const QString path = folder + QStringLiteral("/user.conf");
    const QString text = contentOf(path);
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const qsizetype equals = line.indexOf(u'=');
        if (equals >= 0 && line.first(equals).trimmed().compare(name, Qt::CaseInsensitive) == 0)
            return withoutQuotes(line.sliced(equals + 1).trimmed()).toString();
    }
    qCWarning(platformLog) << "user setting" << name << "not in" << path;
    return {};
}

} // namespace platform
