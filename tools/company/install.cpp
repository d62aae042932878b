#include "tools/company/install.h"

#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

// The function behind the macro is global.
static void loadResources() {
    Q_INIT_RESOURCE(schema);
}

namespace company {

namespace {

QString quotedName(const QString& name) {
    return u'`' + QString(name).replace(u'`', u"``"_s) + u'`';
}

void executeOnServer(db::ConnectionSettings settings, const QString& command) {
    const QString name = quotedName(settings.database);
    settings.database.clear();
    db::Connection connection;
    connection.configure(settings);
    connection.execute(command.arg(name));
}

void executeFile(db::Connection& connection, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("No such part of the schema: " + path.toStdString());
    for (const QString& statement : statementsOf(QString::fromUtf8(file.readAll())))
        connection.execute(statement);
}

void installOne(const db::ConnectionSettings& settings, const QStringList& files) {
    executeOnServer(settings, u"CREATE DATABASE %1 CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci"_s);
    db::Connection connection;
    connection.configure(settings);
    for (const QString& file : files)
        executeFile(connection, file);
}

} // namespace

db::ConnectionSettings applicationSettings(db::ConnectionSettings main) {
    main.database += u"_app"_s;
    return main;
}

QStringList statementsOf(const QString& sql) {
    QStringList statements = sql.split(u";\n"_s, Qt::SkipEmptyParts);
    statements.removeIf([](const QString& statement) { return statement.trimmed().isEmpty(); });
    return statements;
}

void install(const db::ConnectionSettings& settings) {
    loadResources();
    installOne(settings, {u":/schema/main.sql"_s, u":/schema/catalogue.sql"_s});
    installOne(applicationSettings(settings), {u":/schema/app.sql"_s});
}

void uninstall(const db::ConnectionSettings& settings) {
    for (const db::ConnectionSettings& one : {settings, applicationSettings(settings)})
        executeOnServer(one, u"DROP DATABASE IF EXISTS %1"_s);
}

} // namespace company
