#include "tools/company/attendance.h"

#include "tools/company/dice.h"

namespace company {

namespace {

// Offices work five days of eight hours, everybody else six days of seven.
bool worksSixDays(const Employee& employee) {
    return employee.group() == Produksi || employee.group() == Keamanan || employee.group() == Harian;
}

bool isRestDay(const Employee& employee, const Day& day) {
    const int weekday = day.date.dayOfWeek();
    return day.publicHoliday || weekday == Qt::Sunday || (weekday == Qt::Saturday && !worksSixDays(employee));
}

Hours halves(int count) {
    return {count * 50};
}

Hours lateness(Dice& dice) {
    return {dice.chance(70) ? dice.between(3, 150) : 0};
}

void takeBreaks(Shift& shift, Dice& dice) {
    shift.maxBreak = {100};
    shift.break1 = {dice.chance(40) ? dice.between(101, 150) : dice.between(60, 100)};
    shift.maxBreak2 = {25};
    // Whoever skips the second break leaves it at nothing.
    shift.break2 = {dice.chance(500) ? 0 : dice.between(10, dice.chance(40) ? 45 : 25)};
}

Shift workedShift(const Employee& employee, Dice& dice) {
    const bool sixDays = worksSixDays(employee);
    Shift shift;
    shift.valid = !dice.chance(4);
    shift.late = lateness(dice);
    shift.early = {dice.chance(30) ? dice.between(5, 120) : 0};
    if (dice.chance(sixDays ? 250 : 80))
        shift.overtime = halves(dice.between(1, 8));
    shift.shiftOvertime = sixDays && shift.overtime.hundredths > 0 && dice.chance(150);
    const int planned = sixDays ? 700 : 800;
    shift.duration = {planned - shift.late.hundredths - shift.early.hundredths + shift.overtime.hundredths};
    takeBreaks(shift, dice);
    return shift;
}

Shift restDayShift(Dice& dice) {
    Shift shift;
    shift.dayOff = true;
    shift.overtime = halves(dice.between(8, 22));
    shift.duration = shift.overtime;
    takeBreaks(shift, dice);
    return shift;
}

Attendance onRestDay(const Employee& employee, Dice& dice) {
    Attendance result;
    if (employee.group() != Manajemen && dice.chance(worksSixDays(employee) ? 60 : 15)) {
        result.shift = restDayShift(dice);
        return result;
    }
    result.status = DayStatus{.status = Libur, .duration = {}, .dayOff = true};
    if (employee.group() == Keamanan && dice.chance(350))
        result.freeHours = FreeHours{.duration = halves(dice.between(8, 16)), .overtime = halves(dice.between(0, 4))};
    return result;
}

// Out of a thousand working days; the rest is worked.
std::optional<Status> absence(Dice& dice) {
    struct Share {
        Status status;
        int perThousand;
    };
    static constexpr Share shares[] = {{TidakHadir, 9}, {Izin, 8},      {Cuti, 18},     {Sakit, 12},
                                       {HadirIzin, 5},  {Cadangan1, 1}, {Cadangan2, 1}, {Cadangan3, 1}};
    int roll = dice.below(1000);
    for (const Share& share : shares) {
        if (roll < share.perThousand)
            return share.status;
        roll -= share.perThousand;
    }
    return std::nullopt;
}

Attendance onWorkingDay(const Employee& employee, Dice& dice) {
    Attendance result;
    if (const std::optional<Status> status = absence(dice)) {
        const Hours duration{*status == HadirIzin ? 800 : 0};
        result.status = DayStatus{.status = *status, .duration = duration, .dayOff = false};
        return result;
    }
    result.shift = workedShift(employee, dice);
    if (employee.group() == Produksi && dice.chance(3))
        result.secondShift = workedShift(employee, dice);
    if (dice.chance(15))
        result.activity = Activity{Status(AktivitasKerja + dice.below(3)), halves(dice.between(1, 8))};
    return result;
}

/// The four tables of results.
class ResultTables final {
public:
    explicit ResultTables(db::Connection& main) :
        m_shifts(main,
                 "shift_result (emp_id_auto, shift_date, valid, late, early, total_ot, duration, holiday, shift_ot, "
                 "break1, max_break, break2, max_break2)"),
        m_statuses(main, "date_temp (emp_id_auto, date_temp, absent_id, duration, holiday)"),
        m_activities(main, "ex_absent (emp_id_auto, tgl_awal, absent_id, sum_result)"),
        m_freeHours(main, "free_ot_result_m (emp_id_auto, free_date, duration, duration_ot)") {}

    void add(int employee, const Day& day, const Attendance& attendance) {
        const Literal date{day.literal};
        addShift(employee, date, attendance.shift);
        addShift(employee, date, attendance.secondShift);
        if (const auto& status = attendance.status)
            m_statuses.row(employee, date, int(status->status), status->duration, Flag{status->dayOff});
        if (const auto& activity = attendance.activity)
            m_activities.row(employee, date, int(activity->kind), activity->amount);
        if (const auto& free = attendance.freeHours)
            m_freeHours.row(employee, date, free->duration, free->overtime);
    }

    void finish() {
        for (BulkInsert* table : {&m_shifts, &m_statuses, &m_activities, &m_freeHours})
            table->finish();
    }

private:
    void addShift(int employee, const Literal& date, const std::optional<Shift>& shift) {
        if (shift)
            m_shifts.row(employee, date, Flag{!shift->valid}, shift->late, shift->early, shift->overtime,
                         shift->duration, Flag{shift->dayOff}, Flag{shift->shiftOvertime}, shift->break1,
                         shift->maxBreak, shift->break2, shift->maxBreak2);
    }

    BulkInsert m_shifts;
    BulkInsert m_statuses;
    BulkInsert m_activities;
    BulkInsert m_freeHours;
};

// The register of holidays covers whole years, as a calendar on the wall does.
void writeHolidays(db::Connection& main, const Period& period) {
    BulkInsert holiday(main, "holiday (holiday_date)");
    for (int year = period.first.year(); year <= period.last.year(); ++year)
        for (const QDate date : publicHolidays(year))
            holiday.row(date);
    holiday.finish();
}

void writeRules(db::Connection& main) {
    BulkInsert free(main, "free_ot (begin_time, shift_ot)");
    free.row(-1, Flag{false});
    free.row(360, Flag{false});
    free.finish();

    // Presence counts in days (2); the other totals are amounts of hours (1).
    BulkInsert sums(main, "sum_report (sum_id, sum_as)");
    for (const int id : {1, 2, 3, 4, 13, 14, 15, 16})
        sums.row(id, id == 4 ? 2 : 1);
    sums.finish();
}

} // namespace

Attendance attendanceOf(const Employee& employee, const Day& day, quint64 seed) {
    if (!employee.isEmployedOn(day.date))
        return {};
    Dice dice{seed, quint64(employee.id), quint64(day.date.toJulianDay())};
    return isRestDay(employee, day) ? onRestDay(employee, dice) : onWorkingDay(employee, dice);
}

void writeAttendance(db::Connection& main, const std::vector<Employee>& employees, const Options& options) {
    const Period period = periodOf(options);
    writeHolidays(main, period);
    writeRules(main);
    const std::vector<Day> days = daysBetween(period.first, period.last);
    ResultTables tables(main);
    for (const Employee& employee : employees)
        for (const Day& day : days)
            tables.add(employee.id, day, attendanceOf(employee, day, options.seed));
    tables.finish();
}

} // namespace company
