#include "tests/frame/recap_oracle.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace oracle {

namespace {

struct Figure {
    const char* column;
    int sum_id; ///< 0: always days
    int sum_as;
    QStringList amounts; ///< selects of emp_id_auto and value; their values are added
    QStringList days;
};

QString select(const char* value, const char* table, const char* conditions) {
    return u"select emp_id_auto, %1 from %2 where %3 group by emp_id_auto"_s.arg(
        QLatin1String(value), QLatin1String(table), QLatin1String(conditions));
}

QString sum(const QByteArray& value, const char* table, const char* conditions) {
    return select("round(sum(" + value + "),2)", table, conditions);
}

QString rows(const char* table, const char* conditions) {
    return sum("1", table, conditions);
}

constexpr char shifts[] = "(select *, DATE(shift_date) as tgl from shift_result where valid=0) as s";
constexpr char statuses[] = "(select *, DATE(date_temp) as tgl from date_temp) as s";
constexpr char activities[] = "(select *, DATE(tgl_awal) as tgl from ex_absent) as s";
constexpr char holidayShifts[] = "(select sr.*, DATE(shift_date) as tgl from shift_result as sr inner join holiday on "
                                 "DATE(holiday_date)=DATE(shift_date) "
                                 "where valid=0) as s";
constexpr char holidayStatuses[] = "(select dt.*, DATE(date_temp) as tgl from date_temp as dt inner join holiday on "
                                   "DATE(holiday_date)=DATE(date_temp)) as s";

#define WINDOW "tgl>=:from and tgl<=:to and "
#define PLAIN_DAY "tgl not in (select DATE(holiday_date) from holiday)"

Figure present(const char* column, const char* shiftTable, const char* statusTable, const char* more) {
    const QByteArray shift = QByteArray(WINDOW "duration>0 and ") + more;
    const QByteArray status = QByteArray(WINDOW "absent_id=1 and ") + more;
    return {column,
            4,
            2,
            {sum("duration", shiftTable, shift), rows(statusTable, status)},
            {rows(shiftTable, shift), rows(statusTable, status)}};
}

Figure status(const char* column, int absent_id) {
    const QByteArray condition = QByteArray(WINDOW "absent_id=") + QByteArray::number(absent_id);
    return {column, 0, 0, {}, {rows(statuses, condition)}};
}

Figure overtime(const char* column, const char* table, const char* more) {
    const QByteArray condition = QByteArray(WINDOW "duration>0 and total_ot>0 and ") + more;
    return {column, 13, 2, {sum("total_ot", table, condition)}, {rows(table, condition)}};
}

Figure activity(const char* column, int sum_id, int absent_id) {
    const QByteArray condition = QByteArray(WINDOW "absent_id=") + QByteArray::number(absent_id);
    return {column, sum_id, 3, {sum("sum_result", activities, condition)}, {rows(activities, condition)}};
}

std::vector<Figure> allFigures() {
    constexpr char longBreak[] = WINDOW "duration>0 and (break1>max_break or break2>max_break2)";
    Figure kehadiran = present("kehadiran", shifts, statuses, "1=1");
    kehadiran.sum_id = 0;
    Figure hadirIzin = present("hadir_izin", shifts, statuses, "1=1");
    hadirIzin.amounts.removeFirst();
    hadirIzin.days.removeFirst();
    return {
        {"late", 1, 2, {sum("late", shifts, WINDOW "1=1")}, {rows(shifts, WINDOW "late>0")}},
        {"early", 2, 2, {sum("early", shifts, WINDOW "1=1")}, {rows(shifts, WINDOW "early>0")}},
        {"istirahat_lebih",
         3,
         2,
         {select("round(sum(break1-max_break),2)+round(sum(break2-max_break2),2)", shifts, longBreak)},
         {rows(shifts, longBreak)}},
        kehadiran,
        present("hadir", shifts, statuses, "1=1"),
        present("hadir_normal", shifts, statuses, "holiday=0"),
        present("hadir_libur", shifts, statuses, "holiday=-1"),
        present("hadir_libur_umum", holidayShifts, holidayStatuses, "holiday=-1"),
        present("hadir_libur_rutin", shifts, statuses, "holiday=-1 and " PLAIN_DAY),
        hadirIzin,
        status("tidak_hadir", 2),
        status("izin", 3),
        status("cuti", 4),
        status("sakit", 5),
        status("libur", 6),
        status("cadangan1", 7),
        status("cadangan2", 8),
        status("cadangan3", 9),
        {"lembur", 13, 2, {sum("total_ot", shifts, WINDOW "1=1")}, {rows(shifts, WINDOW "duration>0 and total_ot>0")}},
        overtime("lembur_normal", shifts, "holiday=0"),
        overtime("lembur_libur", shifts, "holiday=-1"),
        overtime("lembur_libur_umum", holidayShifts, "holiday=-1"),
        overtime("lembur_libur_rutin", shifts, "holiday=-1 and " PLAIN_DAY),
        overtime("lembur_jam", shifts, "shift_ot=0"),
        overtime("lembur_shift", shifts, "shift_ot=-1"),
        activity("aktiv", 14, 10),
        activity("aktiv2", 15, 11),
        activity("aktiv3", 16, 12),
    };
}

} // namespace

QStringList recapOf(TestDatabase& database, const Period& period) {
    QMap<QString, QString> settings;
    for (const QString& row : database.rows(u"select sum_id, sum_as from sum_report"_s))
        settings.insert(row.section(u'\t', 0, 0), row.section(u'\t', 1));
    QStringList lines =
        database.rows(u"select emp_id_auto from emp where emp_id_auto<>-1 and emp_status=0 order by emp_id_auto"_s);
    for (const Figure& figure : allFigures()) {
        const bool inDays =
            figure.sum_id == 0 || settings.value(QString::number(figure.sum_id)) == QString::number(figure.sum_as);
        QMap<QString, double> values;
        for (QString statement : inDays ? figure.days : figure.amounts) {
            statement.replace(u":from"_s, period.from.toString(u"''yyyy-MM-dd''"_s))
                .replace(u":to"_s, period.to.toString(u"''yyyy-MM-dd''"_s));
            for (const QString& row : database.rows(statement))
                values[row.section(u'\t', 0, 0)] += row.section(u'\t', 1).toDouble();
        }
        for (QString& line : lines)
            line += u" %1=%2"_s.arg(QLatin1String(figure.column),
                                    QString::number(values.value(line.section(u' ', 0, 0)), 'f', 2));
    }
    return lines;
}

} // namespace oracle
