#include "run/form/stored_run.h"

#include <QStringList>

#include <limits>

namespace run {

namespace {

using namespace Qt::StringLiterals;

/// One number for a row; a quoted NULL differs from an empty text.
QString rowSum(const QStringList& columns) {
    return u"crc32(concat(quote("_s + columns.join(u"), quote("_s) + u")))"_s;
}

QString tableSum(const QString& table, const QStringList& columns) {
    return u"(select concat(count(*), '-', ifnull(sum(%1), 0)) from %2 where process_id=%3)"_s.arg(rowSum(columns),
                                                                                                   table, u"%1"_s);
}

QString storedRunStatement(int process_id) {
    static const QString select =
        u"select lastupdate_user, lastupdate_date, concat_ws(' ', "_s +
        rowSum({u"process_name"_s, u"date1"_s, u"date2"_s, u"round_value"_s, u"payment_date"_s, u"tot_process"_s,
                u"create_by"_s, u"check_by"_s, u"approve_by"_s, u"lastupdate_date"_s, u"lastupdate_user"_s}) +
        u", "_s + tableSum(u"z_pay_process_d"_s, {u"no_urut"_s, u"emp_id_auto"_s, u"tot_payroll"_s}) + u", "_s +
        tableSum(u"z_pay_process_sd"_s, {u"no_urut"_s, u"no_urut_ref"_s, u"emp_id_auto"_s, u"com_id"_s,
                                         u"subtot_payroll"_s, u"kondisi"_s, u"rumus"_s, u"jml_faktor"_s}) +
        u") as content from z_pay_process_m where process_id=%1"_s;
    return select.arg(process_id);
}

} // namespace

std::optional<StoredRun> readStoredRun(db::Connection& main, int process_id) {
    db::Result row = main.query(storedRunStatement(process_id));
    if (!row.next())
        return std::nullopt;
    return StoredRun{row.text(0), row.moment(1), row.text(2)};
}

std::optional<StoredRun> lockStoredRun(db::Connection& main, int process_id) {
    // The lock first and alone: what is read behind it is then newer than whatever it waited for.
    (void)main.query(u"select process_id from z_pay_process_m where process_id=%1 for update"_s.arg(process_id));
    return readStoredRun(main, process_id);
}

void deleteStoredRun(db::Connection& main, int process_id) {
    for (const char16_t* table : {u"z_pay_process_sd", u"z_pay_process_d", u"z_pay_process_m"})
        main.execute(u"delete from %1 where process_id=%2"_s.arg(QString::fromUtf16(table)).arg(process_id));
}

int lockNextProcessId(db::Connection& main) {
    db::Result row = main.query(u"select max(process_id) from z_pay_process_m for update"_s);
    row.next();
    const qint64 next = row.integer(0) + 1;
    if (next > std::numeric_limits<qint32>::max())
        throw db::Fault(0, {}, u"No number is left for another payroll run"_s, {});
    return int(next);
}

} // namespace run
