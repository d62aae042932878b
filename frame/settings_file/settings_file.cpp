#include "frame/settings_file/settings_file.h"

#include "frame/settings_file/field_code.h"

#include <QFile>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace settings {

namespace {

constexpr qsizetype fieldCount = 5;

// Far beyond five fields; what a wrong file holds behind it is not worth the memory.
constexpr qint64 largestFile = 1 << 20;

SettingsFileError failure(const QString& path, const QString& reason) {
    return SettingsFileError((path + QStringLiteral(": ") + reason).toStdString());
}

void requireDone(bool done, const QString& path, const QFileDevice& file) {
    if (!done)
        throw failure(path, file.errorString());
}

} // namespace

QStringList readSettingsFields(const QString& path) {
    QFile file(path);
    requireDone(file.open(QIODevice::ReadOnly), path, file);
    QStringList fields;
    SplitFields(u' ', QString::fromUtf8(file.read(largestFile)), &fields);
    if (fields.size() < fieldCount)
        throw failure(path, QStringLiteral("%1 fields where five belong").arg(fields.size()));
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
        throw failure(path, QStringLiteral("the port is no number"));
    return {.user = fields[0], .server = fields[1], .password = fields[2], .database = fields[3], .port = port};
}

void writeSettingsFile(const QString& path, const DatabaseSettings& settings) {
    const QStringList fields{EncodeField(settings.user), EncodeField(settings.server), EncodeField(settings.password),
                             EncodeField(settings.database), EncodeField(QString::number(settings.port))};
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    requireDone(file.open(), path, file);
    requireDone(file.write(fields.join(u' ').toLatin1() + '\n') > 0 && file.flush(), path, file);
    // Qt's own rename refuses to replace a file.
    if (std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) != 0)
        throw failure(path, QString::fromLocal8Bit(std::strerror(errno)));
    file.setAutoRemove(false);
}

} // namespace settings
