#include "run/reading/figure_statements.h"

#include <QStringList>

namespace run {

namespace {

using namespace Qt::StringLiterals;

/// Whose rows a derived table reads.
enum class Rows { OfEveryone, OfTheEmployee };

bool isFreeHours(const Figure& figure) {
    return figure.id_kode_report == figureJamBebas;
}

QString column(const AttendanceTable& table, QLatin1String name) {
    return table.alias + '.'_L1 + name;
}

QString dateColumn(const AttendanceTable& table) {
    return column(table, table.date);
}

QString from(const AttendanceTable& table) {
    return table.name + " as "_L1 + table.alias;
}

QString window(const QString& date) {
    return u"DATE(%1)>=DATE(:tanggal_awal) and DATE(%1)<DATE(:tanggal_akhir)"_s.arg(date);
}

QString holidayJoin(const FigurePart& part) {
    if (part.holidays != Holidays::Only)
        return {};
    return u" inner join holiday as h on DATE(h.holiday_date)=DATE(%1)"_s.arg(dateColumn(*part.table));
}

/// What tells the part's rows from others of its table, window apart.
QString ownConditions(const FigurePart& part) {
    QStringList conditions;
    if (!part.conditions.isEmpty())
        conditions << part.conditions;
    if (part.holidays == Holidays::Except)
        conditions << u"DATE(%1) not in (select DATE(holiday_date) from holiday where %2)"_s.arg(
            dateColumn(*part.table), window(u"holiday_date"_s));
    return conditions.join(" and "_L1);
}

QString where(const FigurePart& part, Rows rows) {
    const AttendanceTable& table = *part.table;
    QStringList conditions;
    if (rows == Rows::OfTheEmployee)
        conditions << column(table, "emp_id_auto"_L1) + "=:emp_id_auto"_L1;
    if (!table.conditions.isEmpty())
        conditions << table.conditions;
    conditions << window(dateColumn(table));
    if (const QString own = ownConditions(part); !own.isEmpty())
        conditions << own;
    return conditions.join(" and "_L1);
}

/// The expression with each aggregate restricted to rows that meet the condition; an empty condition restricts nothing.
QString filled(QString expression, const QString& condition) {
    if (condition.isEmpty())
        return expression.remove(u'{').remove(u'}');
    return expression.replace(u"{"_s, u"if("_s + condition + u", "_s).replace(u"}"_s, u", null)"_s);
}

/// Only the first part that has rows counts, so the parts have to be told apart where there are two.
QString partColumn(const Figure& figure, std::size_t place) {
    return figure.parts.size() > 1 ? u", %1 as bagian"_s.arg(place) : QString();
}

// The select of a derived table with one row per employee: the rounded sum of the amounts, or the number of rows.

QString amountSelect(const Figure& figure, std::size_t place, Rows rows) {
    const FigurePart& part = figure.parts[place];
    const QString employee = column(*part.table, "emp_id_auto"_L1);
    const QString join = holidayJoin(part) + part.table->setting;
    return u"select %1, %2 as %3"_s.arg(employee, filled(part.amount, {}), figure.value) + partColumn(figure, place) +
           u" from %1%2 where %3 group by %4 "_s.arg(from(*part.table), join, where(part, rows), employee);
}

QString daysSelect(const Figure& figure, std::size_t place, Rows rows) {
    const FigurePart& part = figure.parts[place];
    const QString employee = column(*part.table, "emp_id_auto"_L1);
    const QString date = dateColumn(*part.table);
    const QString perDate = u"select %1, %2, %3 as %4 from %5%6 where %7 group by %1, %2 "_s.arg(
        employee, date, filled(part.days, {}), figure.value, from(*part.table), holidayJoin(part), where(part, rows));
    return u"select emp_id_auto, %1, round(sum(%2),2) as %2"_s.arg(part.table->date, figure.value) +
           partColumn(figure, place) + u" from (%1) as %2 group by emp_id_auto "_s.arg(perDate, figure.alias);
}

QString joined(const Figure& figure, QString (*select)(const Figure&, std::size_t, Rows), const QString& alias) {
    // The figures that follow the attendance setting have no employee test inside: the outer one picks the row.
    const bool forEveryone = figure.countSwitch.sum_id == attendanceSwitch.sum_id;
    QStringList parts;
    for (std::size_t place = 0; place < figure.parts.size(); ++place)
        parts << select(figure, place, forEveryone ? Rows::OfEveryone : Rows::OfTheEmployee);
    return u" left join (%1) as %2 on e.emp_id_auto=%2.emp_id_auto"_s.arg(parts.join(" union all "_L1), alias);
}

/// How often the date of a row is entered as a public holiday, NULL where it is none. The dates are written out: a join
/// by a date that may hold a time of day finds no index.
QString timesOf(const FigurePart& part, const HolidayTimes& holidays) {
    QString cases;
    for (const auto& [day, times] : holidays.asKeyValueRange())
        cases += u" when %1 then %2"_s.arg(day).arg(times);
    return cases.isEmpty() ? u"null"_s : u"case TO_DAYS(%1)%2 end"_s.arg(dateColumn(*part.table), cases);
}

/// The part with each row taken as often as its holidays want it.
BulkColumn columnOf(const FigurePart& part, QString expression, const HolidayTimes& holidays) {
    QString conditions = part.conditions;
    if (part.holidays == Holidays::Except)
        conditions += u" and (%1) is null"_s.arg(timesOf(part, holidays));
    if (part.holidays == Holidays::Only && expression.startsWith("count"_L1))
        expression = u"sum({%1})"_s.arg(timesOf(part, holidays));
    else if (part.holidays == Holidays::Only)
        expression.replace(u"}"_s, u"*(%1)}"_s.arg(timesOf(part, holidays)));
    return {&part, conditions, expression};
}

QString switchedColumn(const QString& days, const QString& amount, const QString& settings, int sum_as) {
    return u"if(%1.sum_as=%2, %3, %4)"_s.arg(settings).arg(sum_as).arg(days, amount);
}

QString valueColumn(const Figure& figure) {
    const QString amount = figure.alias + u'.' + figure.value;
    const QString days = figure.alias + u"_hari."_s + figure.value;
    if (isFreeHours(figure))
        return u"if(fr.shift_ot=-1, %1, %2)"_s.arg(switchedColumn(days, amount, u"sm2"_s, overtimeSwitch.sum_as),
                                                   switchedColumn(days, amount, u"sm"_s, attendanceSwitch.sum_as));
    const auto orZero = [](const QString& value) { return u"ifnull(%1, 0)"_s.arg(value); };
    if (figure.countSwitch.sum_id == 0)
        return orZero(days);
    return switchedColumn(orZero(days), orZero(amount), u"sm"_s, figure.countSwitch.sum_as);
}

QString settingsJoins(const Figure& figure) {
    QString joins;
    if (figure.countSwitch.sum_id != 0)
        joins += u" left join sum_report as sm on sm.sum_id=%1"_s.arg(figure.countSwitch.sum_id);
    if (isFreeHours(figure))
        joins += u" left join sum_report as sm2 on sm2.sum_id=%1"_s.arg(overtimeSwitch.sum_id) +
                 figure.parts.front().table->setting;
    return joins;
}

} // namespace

QString statementForEmployee(const Figure& figure) {
    const bool alwaysCounted = figure.countSwitch.sum_id == 0;
    QString columns = valueColumn(figure) + u" as "_s + figure.column;
    QString order;
    if (figure.id_kode_report == figureHadir)
        columns += u", ifnull(hadir_hari.duration, 0) as kehadiran"_s;
    if (figure.parts.size() > 1) {
        columns += u", %1.bagian, %1_hari.bagian as bagian_hari"_s.arg(figure.alias);
        order = u" order by bagian, bagian_hari"_s;
    }
    QString joins = joined(figure, daysSelect, figure.alias + u"_hari"_s);
    if (!alwaysCounted)
        joins.prepend(joined(figure, amountSelect, figure.alias));
    return u"SELECT * FROM ( SELECT e.emp_id_auto, e.pin, e.nik, "_s + columns + u" FROM emp as e"_s + joins +
           settingsJoins(figure) + u" where e.emp_id_auto=:emp_id_auto ) as rekapitulasi"_s + order;
}

BulkColumn bulkColumn(const Figure& figure, const FigurePart& part, const BulkSettings& settings) {
    const auto inDays = [&](const CountSwitch& by) {
        return by.sum_id == 0 || (settings.counts.contains(by.sum_id) && settings.counts[by.sum_id] == by.sum_as);
    };
    if (!isFreeHours(figure))
        return inDays(figure.countSwitch) ? dayColumn(part, settings.holidays)
                                          : columnOf(part, part.amount, settings.holidays);
    // The days are counted without the settings, the amounts once for each.
    const QString days = u"%1/greatest(1,(select count(*) from free_ot where begin_time<>-1))"_s.arg(part.days);
    const auto chosen = [&](const CountSwitch& by) { return inDays(by) ? days : QString(part.amount); };
    return columnOf(part, u"if(fr.shift_ot=-1, %1, %2)"_s.arg(chosen(overtimeSwitch), chosen(attendanceSwitch)),
                    settings.holidays);
}

BulkColumn dayColumn(const FigurePart& part, const HolidayTimes& holidays) {
    BulkColumn column = columnOf(part, part.days, holidays);
    column.inDays = true;
    return column;
}

bool shareStatement(const BulkColumn& a, const BulkColumn& b) {
    return a.part->table == b.part->table;
}

QString statementForAll(const std::vector<BulkColumn>& columns, Grouping grouping, const QString& employees) {
    const AttendanceTable& table = *columns.front().part->table;
    const QString employee = column(table, "emp_id_auto"_L1);
    const QString date = dateColumn(table);
    const bool byDay = grouping == Grouping::ByEmployeeAndDay;
    QString values;
    int number = 0;
    for (const BulkColumn& wanted : columns) {
        const QString value = filled(wanted.expression, wanted.conditions);
        // A sum over no row is NULL by itself, a count is not.
        const bool isCount = wanted.expression.startsWith("count"_L1);
        values += u", %1 as c%2"_s.arg(isCount ? u"nullif(%1, 0)"_s.arg(value) : value).arg(++number);
    }
    // The employees come first and the dates are compared bare, so that an index over both is used; DATE() around a
    // column would hide it.
    QStringList conditions{u"%1>=:tanggal_awal and %1<:tanggal_akhir"_s.arg(date)};
    if (!table.conditions.isEmpty())
        conditions << table.conditions;
    return u"select straight_join %1, %2 as hari"_s.arg(employee,
                                                        byDay ? u"DATEDIFF(%1, :tanggal_awal)"_s.arg(date) : u"0"_s) +
           values + u" from (%1) as anggota"_s.arg(employees) +
           u" inner join %1 on %2=anggota.emp_id_auto"_s.arg(from(table), employee) + table.setting + u" where "_s +
           conditions.join(" and "_L1) + u" group by "_s + employee + (byDay ? u", hari"_s : QString());
}

} // namespace run
