#include "tests/support/test_database.h"

#include "base/settings_file/settings_file.h"
#include "tools/company/generate.h"

#include <QCoreApplication>

#include <atomic>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

QString variable(const char* name) {
    if (!qEnvironmentVariableIsSet(name))
        throw std::runtime_error(std::string("No server to test with: ") + name +
                                 " is not set; run the tests through tools/server run");
    return qEnvironmentVariable(name);
}

QString uniqueName() {
    static std::atomic<int> count = 0;
    return u"orvane_test_%1_%2"_s.arg(QCoreApplication::applicationPid()).arg(++count);
}

} // namespace

db::ConnectionSettings testServer() {
    return {.host = variable("ORVANE_DB_HOST"),
            .port = variable("ORVANE_DB_PORT").toUShort(),
            .user = variable("ORVANE_DB_USER"),
            .password = variable("ORVANE_DB_PASSWORD"),
            .database = {}};
}

static db::ConnectionSettings freshName() {
    db::ConnectionSettings settings = testServer();
    settings.database = uniqueName();
    // A test program that was killed may have left its databases behind, and process numbers come back.
    company::uninstall(settings);
    return settings;
}

TestDatabase::TestDatabase() {
    const db::ConnectionSettings settings = freshName();
    company::install(settings);
    configure(settings);
}

TestDatabase::TestDatabase(const company::Options& options) {
    const db::ConnectionSettings settings = freshName();
    company::generate(settings, options);
    configure(settings);
}

void TestDatabase::configure(const db::ConnectionSettings& settings) {
    m_main.configure(settings);
    m_app.configure(company::applicationSettings(settings));
}

TestDatabase::~TestDatabase() {
    try {
        company::uninstall(m_main.settings());
    } catch (const std::exception& fault) {
        qWarning("The test databases stay behind: %s", fault.what());
    }
}

void TestDatabase::writeSettingsFile(const QString& folder) const {
    const db::ConnectionSettings& server = mainSettings();
    settings::writeSettingsFile(folder + u"/user.tvk"_s, {.user = server.user,
                                                          .server = u"localhost"_s,
                                                          .password = server.password,
                                                          .database = server.database,
                                                          .port = server.port});
}

qint64 TestDatabase::run(db::Connection& connection, const QString& sql) {
    qint64 touched = 0;
    for (const QString& statement : company::statementsOf(sql))
        touched = connection.execute(statement);
    return touched;
}

void TestDatabase::setDateType(const QString& type) {
    for (const char* column :
         {"shift_result modify shift_date", "date_temp modify date_temp", "ex_absent modify tgl_awal",
          "free_ot_result_m modify free_date", "holiday modify holiday_date"})
        run(u"alter table %1 %2 not null"_s.arg(QLatin1String(column), type));
}

QStringList TestDatabase::rows(db::Connection& connection, const QString& sql) {
    QStringList lines;
    db::Result result = connection.query(sql);
    while (result.next()) {
        QStringList values;
        for (int i = 0; i < int(result.columns().size()); ++i)
            values << (result.isNull(i) ? u"NULL"_s : result.text(i));
        lines << values.join(u'\t');
    }
    return lines;
}
