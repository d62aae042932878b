#include "run/reading/figures.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace run {

namespace {

using namespace Qt::StringLiterals;

constexpr AttendanceTable shiftResult{"shift_result"_L1, "sr"_L1, "shift_date"_L1, "sr.valid=0"_L1, ""_L1};
constexpr AttendanceTable dateTemp{"date_temp"_L1, "dt"_L1, "date_temp"_L1, ""_L1, ""_L1};
constexpr AttendanceTable exAbsent{"ex_absent"_L1, "ex"_L1, "tgl_awal"_L1, ""_L1, ""_L1};
// -1 is no setting. Each of several ones takes every row once more.
constexpr AttendanceTable freeHours{"free_ot_result_m"_L1, "m"_L1, "free_date"_L1, ""_L1,
                                    " left join free_ot as fr on fr.begin_time<>-1"_L1};

// Overtime on a day without duration is in none of the figures that split it up.
constexpr auto worked = "sr.duration>0"_L1;
constexpr auto workedOnHoliday = "sr.duration>0 and sr.holiday=-1"_L1;
constexpr auto workedOnWorkday = "sr.duration>0 and sr.holiday=0"_L1;
constexpr auto overtimeOnHoliday = "sr.duration>0 and sr.total_ot>0 and sr.holiday=-1"_L1;
constexpr auto overtimeOnWorkday = "sr.duration>0 and sr.total_ot>0 and sr.holiday=0"_L1;
constexpr auto present = "dt.absent_id=1"_L1;
constexpr auto presentOnHoliday = "dt.absent_id=1 and dt.holiday=-1"_L1;
constexpr auto presentOnWorkday = "dt.absent_id=1 and dt.holiday=0"_L1;

FigurePart durations(QLatin1String conditions, Holidays holidays = Holidays::Any) {
    return {&shiftResult, conditions, "round(sum({sr.duration}),2)"_L1, "count({sr.duration})"_L1, holidays};
}

/// A day has a status, no amount: it is counted in both forms.
FigurePart statuses(QLatin1String conditions, Holidays holidays = Holidays::Any) {
    return {&dateTemp, conditions, "count({dt.absent_id})"_L1, "count({dt.absent_id})"_L1, holidays};
}

Figure shiftFigure(int id, QLatin1String column, QLatin1String alias, const FigurePart& part) {
    return {id, column, alias, column, {.sum_id = id, .sum_as = 2}, {part}};
}

Figure presenceFigure(int id, QLatin1String column, std::vector<FigurePart> parts) {
    return {id, column, "hadir"_L1, "duration"_L1, attendanceSwitch, std::move(parts)};
}

Figure statusFigure(int id, QLatin1String column, QLatin1String condition) {
    return {id, column, column, column, {}, {statuses(condition)}};
}

Figure overtimeFigure(int id, QLatin1String column, QLatin1String conditions, Holidays holidays = Holidays::Any) {
    const FigurePart part{&shiftResult, conditions, "round(sum({sr.total_ot}),2)"_L1, "count({sr.total_ot})"_L1,
                          holidays};
    return {id, column, "lembur"_L1, "total_ot"_L1, overtimeSwitch, {part}};
}

Figure activityFigure(int id, QLatin1String column, QLatin1String condition) {
    const FigurePart part{&exAbsent, condition, "round(sum({ex.sum_result}),2)"_L1, "count({ex.absent_id})"_L1};
    return {id, column, column, "sum_result"_L1, {.sum_id = id, .sum_as = 3}, {part}};
}

Figure freeHoursFigure(int id, QLatin1String column) {
    const FigurePart part{&freeHours,
                          {},
                          "if(fr.shift_ot=-1, round(sum({m.duration_ot}),2), round(sum({m.duration}),2))"_L1,
                          "count({m.free_date})"_L1};
    return {id, column, "free"_L1, "durasi"_L1, attendanceSwitch, {part}};
}

std::vector<Figure> allFigures() {
    using enum Holidays;
    return {
        shiftFigure(1, "late"_L1, "telat"_L1,
                    {&shiftResult, "sr.late>0"_L1, "round(sum({sr.late}),2)"_L1, "count({late})"_L1}),
        shiftFigure(2, "early"_L1, "cepat"_L1,
                    {&shiftResult, "sr.early>0"_L1, "round(sum({sr.early}),2)"_L1, "count({early})"_L1}),
        // An unused second break on a row whose first break ran over reduces the total: both differences are summed.
        shiftFigure(3, "break_lebih"_L1, "istirahat"_L1,
                    {&shiftResult, "(sr.break1>sr.max_break or sr.break2>sr.max_break2)"_L1,
                     "round(round(sum({sr.break1-sr.max_break}),2)+round(sum({sr.break2-sr.max_break2}),2),2)"_L1,
                     "count({sr.emp_id_auto})"_L1}),
        presenceFigure(4, "hadir"_L1, {durations(worked), statuses(present)}),
        statusFigure(5, "tidak_hadir"_L1, "dt.absent_id=2"_L1),
        statusFigure(6, "izin"_L1, "dt.absent_id=3"_L1),
        statusFigure(7, "cuti"_L1, "dt.absent_id=4"_L1),
        statusFigure(8, "sakit"_L1, "dt.absent_id=5"_L1),
        statusFigure(9, "libur"_L1, "dt.absent_id=6"_L1),
        statusFigure(10, "cadangan1"_L1, "dt.absent_id=7"_L1),
        statusFigure(11, "cadangan2"_L1, "dt.absent_id=8"_L1),
        statusFigure(12, "cadangan3"_L1, "dt.absent_id=9"_L1),
        overtimeFigure(13, "jumlah_lembur"_L1, "sr.total_ot>0"_L1),
        activityFigure(14, "aktiv"_L1, "ex.absent_id=10"_L1),
        activityFigure(15, "aktiv2"_L1, "ex.absent_id=11"_L1),
        activityFigure(16, "aktiv3"_L1, "ex.absent_id=12"_L1),
        presenceFigure(18, "hadir_libur"_L1, {durations(workedOnHoliday), statuses(presentOnHoliday)}),
        presenceFigure(19, "hadir_normal"_L1, {durations(workedOnWorkday), statuses(presentOnWorkday)}),
        presenceFigure(20, "hadir_libur_umum"_L1, {durations(workedOnHoliday, Only), statuses(presentOnHoliday, Only)}),
        presenceFigure(21, "hadir_libur_rutin"_L1,
                       {durations(workedOnHoliday, Except), statuses(presentOnHoliday, Except)}),
        presenceFigure(22, "hadir_izin"_L1, {statuses(present)}),
        overtimeFigure(23, "lembur_normal"_L1, overtimeOnWorkday),
        overtimeFigure(24, "lembur_libur"_L1, overtimeOnHoliday),
        overtimeFigure(25, "lembur_libur_umum"_L1, overtimeOnHoliday, Only),
        overtimeFigure(26, "lembur_libur_rutin"_L1, overtimeOnHoliday, Except),
        overtimeFigure(27, "lembur_jam"_L1, "sr.duration>0 and sr.total_ot>0 and sr.shift_ot=0"_L1),
        overtimeFigure(28, "lembur_shift"_L1, "sr.duration>0 and sr.total_ot>0 and sr.shift_ot=-1"_L1),
        freeHoursFigure(figureJamBebas, "jam_bebas"_L1),
    };
}

} // namespace

std::span<const Figure> figures() {
    static const std::vector<Figure> all = allFigures();
    return all;
}

const Figure* findFigure(int id_kode_report) {
    const auto found = std::ranges::find(figures(), id_kode_report, &Figure::id_kode_report);
    return found == figures().end() ? nullptr : &*found;
}

} // namespace run
