#include "tests/run/form_run.h"

#include "tests/support/test_database.h"

using namespace Qt::StringLiterals;

namespace {

QString number(double value) {
    return QString::number(value, 'f', 1).remove(u".0"_s);
}

} // namespace

db::Connection& FormRun::server() {
    static TestDatabase database;
    static db::Connection connection;
    connection.configure(database.mainSettings());
    return connection;
}

FormRun::FormRun(const run::Run& computed, double round_value) :
    copy(server(), {.login_id = u"sari"_s, .now = [] { return QDateTime(QDate(2024, 1, 31), QTime(8, 0)); }}) {
    copy.openNew();
    copy.cds_m.editValue(u"round_value", round_value);
    copy.appendRun(computed);
}

std::string FormRun::text() {
    QStringList lines;
    for (copy.cds_d.first(); !copy.cds_d.isEof(); copy.cds_d.next()) {
        QStringList rows;
        for (copy.cds_sd.first(); !copy.cds_sd.isEof(); copy.cds_sd.next())
            rows << copy.cds_sd.text(u"no_urut_ref") + u':' + number(copy.cds_sd.real(u"subtot_payroll"));
        lines << u"%1=%2 (%3)"_s.arg(copy.cds_d.text(u"no_urut"), number(copy.cds_d.real(u"tot_payroll")),
                                     rows.join(u' '));
    }
    return (lines << u"total "_s + number(copy.cds_m.real(u"tot_process"))).join(u", "_s).toStdString();
}
