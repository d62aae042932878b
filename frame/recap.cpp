#include "frame/recap.h"

#include "run/reading/statements.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace frame::recap {

namespace {

/// How a column of the recap departs from the figure of a payroll run.
enum class Rule {
    AsInRun,
    EveryRow,              ///< its amount sums all rows, so a total may exceed the sum of its parts
    WithPresence,          ///< only rows with a duration
    EveryRowOrPresentDays, ///< an amount of all rows, or days with a duration
    InDays,                ///< a number of days whatever the settings say
};

struct RecapFigure {
    QLatin1String column;
    int id_kode_report;
    Rule rule = Rule::AsInRun;
};

constexpr RecapFigure figures[] = {
    {"late"_L1, 1, Rule::EveryRow},
    {"early"_L1, 2, Rule::EveryRow},
    {"istirahat_lebih"_L1, 3, Rule::WithPresence},
    {"kehadiran"_L1, run::figureHadir, Rule::InDays},
    {"hadir"_L1, run::figureHadir},
    {"hadir_normal"_L1, 19},
    {"hadir_libur"_L1, 18},
    {"hadir_libur_umum"_L1, 20},
    {"hadir_libur_rutin"_L1, 21},
    {"hadir_izin"_L1, 22},
    {"tidak_hadir"_L1, 5},
    {"izin"_L1, run::figureIzin},
    {"cuti"_L1, run::figureCuti},
    {"sakit"_L1, run::figureSakit},
    {"libur"_L1, run::figureLibur},
    {"lembur"_L1, 13, Rule::EveryRowOrPresentDays},
    {"lembur_normal"_L1, 23},
    {"lembur_libur"_L1, 24},
    {"lembur_libur_umum"_L1, 25},
    {"lembur_libur_rutin"_L1, 26},
    {"lembur_jam"_L1, 27},
    {"lembur_shift"_L1, 28},
    {"cadangan1"_L1, 10},
    {"cadangan2"_L1, 11},
    {"cadangan3"_L1, 12},
    {"aktiv"_L1, 14},
    {"aktiv2"_L1, 15},
    {"aktiv3"_L1, 16},
};

run::BulkColumn columnOf(const run::Figure& figure, const run::FigurePart& part, Rule rule,
                         const run::BulkSettings& settings) {
    run::BulkColumn column =
        rule == Rule::InDays ? run::dayColumn(part, settings.holidays) : run::bulkColumn(figure, part, settings);
    const bool ofEveryRow = rule == Rule::EveryRow || rule == Rule::EveryRowOrPresentDays;
    if (ofEveryRow && !column.inDays)
        column.conditions.clear();
    else if (rule == Rule::WithPresence || rule == Rule::EveryRowOrPresentDays)
        column.conditions.prepend("sr.duration>0 and "_L1);
    return column;
}

/// The derived tables of one statement: columns that can be read in one pass over their table share one.
class Tables final {
public:
    /// The name under which the outer statement reads the column.
    [[nodiscard]] QString place(const run::BulkColumn& column) {
        const auto table = std::ranges::find_if(
            m_tables, [&](const auto& columns) { return run::shareStatement(columns.front(), column); });
        const auto number = table - m_tables.begin();
        if (table == m_tables.end())
            m_tables.emplace_back();
        std::vector<run::BulkColumn>& columns = m_tables[std::size_t(number)];
        columns.push_back(column);
        return u"t%1.c%2"_s.arg(number).arg(columns.size());
    }

    /// Of the employees in `employees`, a select of emp_id_auto, to those of k.
    [[nodiscard]] QString joins(const QString& employees) const {
        QString joins;
        for (std::size_t i = 0; i < m_tables.size(); ++i)
            joins += u"\nleft join (%1) as t%2 on t%2.emp_id_auto=k.emp_id_auto"_s.arg(
                run::statementForAll(m_tables[i], run::Grouping::ByEmployee, employees), QString::number(i));
        return joins;
    }

private:
    std::vector<std::vector<run::BulkColumn>> m_tables;
};

QString valueOf(const RecapFigure& wanted, const run::BulkSettings& settings, Tables& tables) {
    const run::Figure& figure = *run::findFigure(wanted.id_kode_report);
    QStringList parts;
    for (const run::FigurePart& part : figure.parts)
        parts << u"ifnull(%1, 0)"_s.arg(tables.place(columnOf(figure, part, wanted.rule, settings)));
    const QString sum = parts.size() == 1 ? parts.front() : u"round(%1, 2)"_s.arg(parts.join(u'+'));
    return sum + u" as "_s + wanted.column;
}

constexpr char16_t fromEmployees[] = uR"(from (
    select e.emp_id_auto, e.pin, e.nik, e.emp_status, e.cab_id_auto, e.dept_id_auto, e.func_id_auto,
        c.cab_name, d.level_id, d.dept_name, f.func_name, e.address, e.phone, e.ssn,
        concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama,
        SUBSTRING_INDEX(e.pin, '', 1) as col_str, SUBSTRING_INDEX(e.pin, ' ', -1) + 0 as col_num,
        SUBSTRING_INDEX(e.nik, '', 1) as col_str2, SUBSTRING_INDEX(e.nik, ' ', -1) + 0 as col_num2
    from emp as e left join cabang as c on e.cab_id_auto=c.cab_id_auto
        left join dept as d on e.dept_id_auto=d.dept_id_auto
        left join func as f on e.func_id_auto=f.func_id_auto) as e )";

} // namespace

QString statement(const QString& condition, const run::BulkSettings& settings) {
    Tables tables;
    QStringList values;
    for (const RecapFigure& figure : figures)
        values << valueOf(figure, settings, tables);
    const QString from = QString::fromUtf16(fromEmployees) + condition;
    // The condition stands in each table, so that a search for a few employees reads the days of those few only; named
    // once in front, the tables would need a younger server.
    return u"select distinct k.*, "_s + values.join(u", "_s) + u" from (select * "_s + from + u") as k"_s +
           tables.joins(u"select emp_id_auto "_s + from) +
           // The key settles what the other two leave open, so that a search gives the same order each time.
           u" order by col_str, col_num, emp_id_auto "_s;
}

std::unique_ptr<data::SqlQuery> open(db::Connection& connection, const Question& question) {
    const run::BulkSettings settings{
        run::readCountSettings(connection),
        run::readHolidayTimes(connection, {question.tanggal_awal, question.tanggal_akhir})};
    auto query = std::make_unique<data::SqlQuery>(connection, statement(question.condition, settings));
    query->setParameter(u"tanggal_awal"_s, question.tanggal_awal);
    query->setParameter(u"tanggal_akhir"_s, question.tanggal_akhir.addDays(1));
    query->open();
    return query;
}

} // namespace frame::recap
