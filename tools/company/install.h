#pragma once

#include "toolkit/db/connection.h"

#include <QStringList>

namespace company {

/// Creates the database that the settings name and its twin for the application, with every table and the catalogue of
/// attendance figures. Throws db::Fault, also where one of the two exists already.
void install(const db::ConnectionSettings& settings);

/// Drops both databases if they exist.
void uninstall(const db::ConnectionSettings& settings);

/// The settings of the application database that belongs to the main one.
[[nodiscard]] db::ConnectionSettings applicationSettings(db::ConnectionSettings main);

/// The statements of one SQL file; a statement ends with a semicolon at the end of a line.
[[nodiscard]] QStringList statementsOf(const QString& sql);

} // namespace company
