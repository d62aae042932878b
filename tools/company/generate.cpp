#include "tools/company/generate.h"

#include "schema/settings_keys.h"
#include "toolkit/text/sql_text.h"
#include "tools/company/administration.h"
#include "tools/company/attendance.h"
#include "tools/company/loans.h"
#include "tools/company/salary.h"
#include "tools/company/texts.h"

using namespace Qt::StringLiterals;

namespace company {

namespace {

void fillMain(const db::ConnectionSettings& settings, const Options& options) {
    db::Connection main;
    main.configure(settings);
    const std::vector<Employee> employees = makeEmployees(options);
    writeOrganisation(main);
    writeEmployees(main, employees);
    writeSalaryStructure(main, employees, options);
    writeLoans(main, makeLoans(employees, options));
    writeUserLog(main, options);
    writeAttendance(main, employees, options);
}

// The settings come last: their presence tells that the company is whole.
void fillApplication(const db::ConnectionSettings& settings, const Options& options) {
    db::Connection app;
    app.configure(applicationSettings(settings));
    writeLogins(app);
    writeTexts(app);
    writeSettings(app, options);
}

} // namespace

void generate(const db::ConnectionSettings& settings, const Options& options) {
    install(settings);
    try {
        fillMain(settings, options);
        fillApplication(settings, options);
    } catch (...) {
        uninstall(settings);
        throw;
    }
}

bool exists(const db::ConnectionSettings& settings) {
    db::Connection connection;
    connection.configure(applicationSettings(settings));
    try {
        return connection.query(u"SELECT param_id FROM global_setting LIMIT 1"_s).rowCount() > 0;
    } catch (const db::Fault& fault) {
        constexpr unsigned unknownDatabase = 1049;
        constexpr unsigned noSuchTable = 1146;
        if (fault.code() == unknownDatabase || fault.code() == noSuchTable)
            return false;
        throw;
    }
}

void setLanguage(const db::ConnectionSettings& settings, const QString& language) {
    db::Connection app;
    app.configure(applicationSettings(settings));
    app.execute(u"UPDATE global_setting SET param_value=%1 WHERE param_id=%2"_s.arg(
        EscapeSqlText(language), EscapeSqlText(QString(schema::defaultLang))));
}

} // namespace company
