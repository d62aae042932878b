#include "base/settings_file/settings_file.h"

#include "base/settings_file/field_code.h"

#include <QFile>
#include <QSaveFile>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace settings {

namespace {

constexpr qsizetype fieldCount = 5;

// Far beyond five fields; what a wrong file holds behind it is not worth the memory.
constexpr qint64 largestFile = 1 << 20;

SettingsFileError failure(const QString& path, const QString& reason) {
    return SettingsFileError((path + u": "_s + reason).toStdString());
}

void requireDone(bool done, const QString& path, const QFileDevice& file) {
    if (!done)
        throw failure(path, file.errorString());
}

void requireSystem(int result, const QString& path) {
    if (result != 0)
        throw failure(path, QString::fromLocal8Bit(std::strerror(errno)));
}

constexpr mode_t forEverybody = 0644;
constexpr mode_t forGroup = 0640;
constexpr mode_t forNobodyElse = 0600;

/// Who may read the file. An owner or group of -1 is left to the system.
struct Access {
    mode_t mode = forEverybody;
    uid_t owner = uid_t(-1);
    gid_t group = gid_t(-1);
};

Access accessOf(const QString& path, const QString& group) {
    Access access;
    struct stat old {};
    if (::stat(QFile::encodeName(path).constData(), &old) == 0)
        access = {.mode = old.st_mode & ALLPERMS, .owner = old.st_uid, .group = old.st_gid};
    if (group.isEmpty())
        return access;
    const struct group* entry = ::getgrnam(group.toLocal8Bit().constData());
    if (entry == nullptr)
        throw failure(path, u"there is no group "_s + group);
    access.mode = forGroup;
    access.group = entry->gr_gid;
    return access;
}

} // namespace

QStringList readSettingsFields(const QString& path) {
    QFile file(path);
    requireDone(file.open(QIODevice::ReadOnly), path, file);
    QStringList fields;
    SplitFields(u' ', QString::fromUtf8(file.read(largestFile)), &fields);
    if (fields.size() < fieldCount)
        throw failure(path, u"%1 fields where five belong"_s.arg(fields.size()));
    fields.resize(fieldCount);
    for (QString& field : fields)
        field = DecodeField(field);
    return fields;
}

DatabaseSettings readSettingsFile(const QString& path) {
    const QStringList fields = readSettingsFields(path);
    bool isNumber = false;
    const quint16 port = fields[4].toUShort(&isNumber);
    if (!isNumber)
        throw failure(path, u"the port is no number"_s);
    return {.user = fields[0], .server = fields[1], .password = fields[2], .database = fields[3], .port = port};
}

void writeSettingsFile(const QString& path, const DatabaseSettings& settings, const QString& group) {
    const QStringList fields{EncodeField(settings.user), EncodeField(settings.server), EncodeField(settings.password),
                             EncodeField(settings.database), EncodeField(QString::number(settings.port))};
    const Access access = accessOf(path, group);
    QSaveFile file(path);
    requireDone(file.open(QIODevice::WriteOnly), path, file);
    requireSystem(::fchmod(file.handle(), forNobodyElse), path);
    requireDone(file.write(fields.join(u' ').toLatin1() + '\n') > 0 && file.flush(), path, file);
    requireSystem(::fchown(file.handle(), access.owner, access.group), path);
    requireSystem(::fchmod(file.handle(), access.mode), path);
    requireDone(file.commit(), path, file);
}

} // namespace settings
