#pragma once

#include "toolkit/db/connection.h"
#include "tools/company/employees.h"

#include <QString>
#include <QStringList>

/// The server and the user that the environment names (ORVANE_DB_HOST, _PORT, _USER, _PASSWORD), without a database.
/// Throws std::runtime_error where the variables are missing.
[[nodiscard]] db::ConnectionSettings testServer();

/// A fresh pair of databases under a name of its own, with all tables and no rows but the catalogue of attendance
/// figures; dropped at the end of its life.
class TestDatabase final {
public:
    TestDatabase();
    /// The same filled by the generator.
    explicit TestDatabase(const company::Options& options);
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    [[nodiscard]] const db::ConnectionSettings& mainSettings() const { return m_main.settings(); }
    [[nodiscard]] const db::ConnectionSettings& appSettings() const { return m_app.settings(); }

    /// The file that a program in the folder finds the pair by.
    void writeSettingsFile(const QString& folder) const;

    /// Runs the statements, one after the other; they end with a semicolon at the end of a line, the last one may go
    /// without. Gives the number of rows that the last one touched.
    qint64 run(const QString& sql) { return run(m_main, sql); }
    qint64 runApp(const QString& sql) { return run(m_app, sql); }

    /// Makes the date columns of attendance "date" or "datetime": a suite may have either.
    void setDateType(const QString& type);

    /// The answer, one line per row, the values parted by tabs, NULL as "NULL".
    [[nodiscard]] QStringList rows(const QString& sql) { return rows(m_main, sql); }
    [[nodiscard]] QStringList rowsApp(const QString& sql) { return rows(m_app, sql); }

    [[nodiscard]] static QStringList rows(db::Connection& connection, const QString& sql);

private:
    void configure(const db::ConnectionSettings& settings);
    static qint64 run(db::Connection& connection, const QString& sql);

    db::Connection m_main;
    db::Connection m_app;
};
