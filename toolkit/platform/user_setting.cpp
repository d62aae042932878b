#include "toolkit/platform/user_setting.h"

#include "toolkit/platform/log.h"

#include <QFile>
#include <QStandardPaths>

#include <filesystem>
#include <stdexcept>

using namespace Qt::StringLiterals;

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
        throw std::runtime_error(u"%1: %2"_s.arg(path, file.errorString()).toStdString());
    return QString::fromUtf8(content);
}

QString withoutBlanks(QString text) {
    return text.removeIf([](QChar c) { return c.isSpace() || c.isNull(); });
}

QStringView withoutQuotes(QStringView value) {
    for (const char16_t quote : {u'"', u'\''})
        if (value.size() >= 2 && value.front() == quote && value.back() == quote)
            return value.sliced(1).chopped(1);
    return value;
}

} // namespace

QString userSettingFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/orvane"_s;
}

QString ReadUserSetting(const QString& name, const QString& folder) {
    const QString path = folder + u"/user.conf"_s;
    const QString text = contentOf(path);
    bool isThere = false;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0)
            continue;
        const QString found = withoutQuotes(line.first(equals).trimmed()).toString().simplified();
        if (found.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        isThere = true;
        if (const QStringView value = withoutQuotes(line.sliced(equals + 1).trimmed()); !value.isEmpty())
            return value.toString();
    }
    // Whoever wrote the name meant something by it; to pass over it would lift a limit.
    if (!isThere && withoutBlanks(text).contains(withoutBlanks(name), Qt::CaseInsensitive))
        throw std::runtime_error(u"%1: no value for '%2' can be read"_s.arg(path, name).toStdString());
    qCWarning(platformLog) << "user setting" << name << "not in" << path;
    return {};
}

} // namespace platform
