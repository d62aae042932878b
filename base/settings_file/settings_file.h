#pragma once

#include "toolkit/fault/fault.h"

#include <QString>
#include <QStringList>

namespace settings {

/// A settings file that cannot be read, written or understood; the text says why and names the file, never a value.
class SettingsFileError final : public fault::Fault {
public:
    using fault::Fault::Fault;
};

/// Where the databases are and who logs in, decoded. `server` is a host name or a dotted IPv4 address.
struct DatabaseSettings {
    QString user;
    QString server;
    QString password;
    QString database;
    quint16 port = 0;

    bool operator==(const DatabaseSettings&) const = default;
};

/// The five decoded fields in the file's order (user, server, password, database, port), a foreign one as "aaa".
/// Throws SettingsFileError where the file cannot be read or holds fewer than five fields.
[[nodiscard]] QStringList readSettingsFields(const QString& path);

/// As readSettingsFields; a port that is no number of 16 bits throws as well.
[[nodiscard]] DatabaseSettings readSettingsFile(const QString& path);

/// Puts the file in place at once: a reader sees the old one or the new one. A new file may be read by everybody, with
/// a group by its members alone. A file that was there keeps its mode, owner and group but for a given group, and a
/// symbolic link stays one. Throws SettingsFileError and leaves the old file where one of these cannot be had.
void writeSettingsFile(const QString& path, const DatabaseSettings& settings, const QString& group = {});

} // namespace settings
