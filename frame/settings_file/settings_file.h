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

/// Writes the file anew, readable by its owner only from its first moment, and puts it in place at once: a reader sees
/// the old file or the new one. Throws SettingsFileError.
void writeSettingsFile(const QString& path, const DatabaseSettings& settings);

} // namespace settings
