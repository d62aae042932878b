#include "run/reading/figures.h"

#include <QString>

#include <algorithm>

namespace run {

namespace {

using namespace Qt::StringLiterals;

constexpr AttendanceTable shiftResult{"shift_result"_L1, "sr"_L1, "shift_date"_L1, "sr.valid=0"_L1, ""_L1};
constexpr AttendanceTable dateTemp{"date_temp"_L1, "dt"_L1, "date_temp"_L1, ""_L1, ""_L1};
constexpr AttendanceTable exAbsent{"ex_absent"_L1, "ex"_L1, "tgl_awal"_L1, ""_L1, ""_L1};
// -1 is no setting. Each of several ones takes every row once more.
constexpr AttendanceTable freeHours{"free_ot_result_m"_L1, "m"_L1, "free_date"_L1, ""_L1,
                                    " left join free_ot as fr on fr.begin_time<>-1"_L1};

FigurePart durations(QLatin1String conditions, Holidays holidays = Holidays::Any) {
    return {&shiftResult, conditions, "round(sum({sr.duration}),2)"_L1, "count({sr.duration})"_L1, holidays};
}

FigurePart overtime(QLatin1String conditions, Holidays holidays = Holidays::Any) {
    return {&shiftResult, conditions, "round(sum({sr.total_ot}),2)"_L1, "count({sr.total_ot})"_L1, holidays};
}

/// A day has a status, no amount: it is counted in both forms.
FigurePart statuses(QLatin1String conditions, Holidays holidays = Holidays::Any) {
    return {&dateTemp, conditions, "count({dt.absent_id})"_L1, "count({dt.absent_id})"_L1, holidays};
}

FigurePart activities(QLatin1String conditions) {
    return {&exAbsent, conditions, "round(sum({ex.sum_result}),2)"_L1, "count({ex.absent_id})"_L1, Holidays::Any};
}

std::vector<Figure> shiftFigures() {
    return {
        {1,
         "sql_terlambat"_L1,
         "late"_L1,
         "telat"_L1,
         "late"_L1,
         {1, 2},
         {{&shiftResult, "sr.late>0"_L1, "round(sum({sr.late}),2)"_L1, "count({late})"_L1}}},
        {2,
         "sql_cepat"_L1,
         "early"_L1,
         "cepat"_L1,
         "early"_L1,
         {2, 2},
         {{&shiftResult, "sr.early>0"_L1, "round(sum({sr.early}),2)"_L1, "count({early})"_L1}}},
        // An unused second break on a row whose first break ran over reduces the total: both differences are summed.
        {3,
         "sql_break_lebih"_L1,
         "break_lebih"_L1,
         "istirahat"_L1,
         "break_lebih"_L1,
         {3, 2},
         {{&shiftResult, "(sr.break1>sr.max_break or sr.break2>sr.max_break2)"_L1,
           "round(round(sum({sr.break1-sr.max_break}),2)+round(sum({sr.break2-sr.max_break2}),2),2)"_L1,
           "count({sr.emp_id_auto})"_L1}}},
    };
}

std::vector<Figure> presenceFigures() {
    return {
        {4,
         "sql_hadir"_L1,
         "hadir"_L1,
         "hadir"_L1,
         "duration"_L1,
         attendanceSwitch,
         {durations("sr.duration>0"_L1), statuses("dt.absent_id=1"_L1)}},
        {18,
         "sql_hadir_libur"_L1,
         "hadir_libur"_L1,
         "hadir"_L1,
         "duration"_L1,
         attendanceSwitch,
         {durations("sr.duration>0 and sr.holiday=-1"_L1), statuses("dt.absent_id=1 and dt.holiday=-1"_L1)}},
        {19,
         "sql_hadir_normal"_L1,
         "hadir_normal"_L1,
         "hadir"_L1,
         "duration"_L1,
         attendanceSwitch,
         {durations("sr.duration>0 and sr.holiday=0"_L1), statuses("dt.absent_id=1 and dt.holiday=0"_L1)}},
        {20,
         "sql_hadir_libur_umum"_L1,
         "hadir_libur_umum"_L1,
         "hadir"_L1,
         "duration"_L1,
         attendanceSwitch,
         {durations("sr.duration>0 and sr.holiday=-1"_L1, Holidays::Only),
          statuses("dt.absent_id=1 and dt.holiday=-1"_L1, Holidays::Only)}},
        {21,
         "sql_hadir_libur_rutin"_L1,
         "hadir_libur_rutin"_L1,
         "hadir"_L1,
         "duration"_L1,
         attendanceSwitch,
         {durations("sr.duration>0 and sr.holiday=-1"_L1, Holidays::Except),
          statuses("dt.absent_id=1 and dt.holiday=-1"_L1, Holidays::Except)}},
        {22,
         "sql_hadir_izin"_L1,
         "hadir_izin"_L1,
         "hadir"_L1,
         "duration"_L1,
         attendanceSwitch,
         {statuses("dt.absent_id=1"_L1)}},
    };
}

Figure statusFigure(int id, QLatin1String query, QLatin1String column, QLatin1String condition) {
    return {id, query, column, column, column, {}, {statuses(condition)}};
}

std::vector<Figure> statusFigures() {
    return {
        statusFigure(5, "sql_tidak_hadir"_L1, "tidak_hadir"_L1, "dt.absent_id=2"_L1),
        statusFigure(6, "sql_izin"_L1, "izin"_L1, "dt.absent_id=3"_L1),
        statusFigure(7, "sql_cuti"_L1, "cuti"_L1, "dt.absent_id=4"_L1),
        statusFigure(8, "sql_sakit"_L1, "sakit"_L1, "dt.absent_id=5"_L1),
        statusFigure(9, "sql_libur"_L1, "libur"_L1, "dt.absent_id=6"_L1),
        statusFigure(10, "sql_cad1"_L1, "cadangan1"_L1, "dt.absent_id=7"_L1),
        statusFigure(11, "sql_cad2"_L1, "cadangan2"_L1, "dt.absent_id=8"_L1),
        statusFigure(12, "sql_cad3"_L1, "cadangan3"_L1, "dt.absent_id=9"_L1),
    };
}

Figure overtimeFigure(int id, QLatin1String query, QLatin1String column, const FigurePart& part) {
    return {id, query, column, "lembur"_L1, "total_ot"_L1, overtimeSwitch, {part}};
}

std::vector<Figure> overtimeFigures() {
    return {
        // Overtime on a day without duration counts here and in none of the figures that split it up.
        overtimeFigure(13, "sql_lembur"_L1, "jumlah_lembur"_L1, overtime("sr.total_ot>0"_L1)),
        overtimeFigure(23, "sql_lembur_hari_normal"_L1, "lembur_normal"_L1,
                       overtime("sr.duration>0 and sr.total_ot>0 and sr.holiday=0"_L1)),
        overtimeFigure(24, "sql_lembur_hari_libur"_L1, "lembur_libur"_L1,
                       overtime("sr.duration>0 and sr.total_ot>0 and sr.holiday=-1"_L1)),
        overtimeFigure(25, "sql_lembur_hari_libur_umum"_L1, "lembur_libur_umum"_L1,
                       overtime("sr.duration>0 and sr.total_ot>0 and sr.holiday=-1"_L1, Holidays::Only)),
        overtimeFigure(26, "sql_lembur_hari_libur_rutin"_L1, "lembur_libur_rutin"_L1,
                       overtime("sr.duration>0 and sr.total_ot>0 and sr.holiday=-1"_L1, Holidays::Except)),
        overtimeFigure(27, "sql_lembur_jam"_L1, "lembur_jam"_L1,
                       overtime("sr.duration>0 and sr.total_ot>0 and sr.shift_ot=0"_L1)),
        overtimeFigure(28, "sql_lembur_shift"_L1, "lembur_shift"_L1,
                       overtime("sr.duration>0 and sr.total_ot>0 and sr.shift_ot=-1"_L1)),
    };
}

std::vector<Figure> otherFigures() {
    return {
        {14, "sql_AK"_L1, "aktiv"_L1, "aktiv"_L1, "sum_result"_L1, {14, 3}, {activities("ex.absent_id=10"_L1)}},
        {15, "sql_ABK"_L1, "aktiv2"_L1, "aktiv2"_L1, "sum_result"_L1, {15, 3}, {activities("ex.absent_id=11"_L1)}},
        {16, "sql_AL"_L1, "aktiv3"_L1, "aktiv3"_L1, "sum_result"_L1, {16, 3}, {activities("ex.absent_id=12"_L1)}},
        {figureJamBebas,
         "sql_jam_bebas"_L1,
         "jam_bebas"_L1,
         "free"_L1,
         "durasi"_L1,
         attendanceSwitch,
         {{&freeHours, ""_L1, "if(fr.shift_ot=-1, round(sum({m.duration_ot}),2), round(sum({m.duration}),2))"_L1,
           "count({m.free_date})"_L1}}},
    };
}

std::vector<Figure> allFigures() {
    std::vector<Figure> all;
    for (const auto& family : {shiftFigures(), presenceFigures(), statusFigures(), overtimeFigures(), otherFigures()})
        all.insert(all.end(), family.begin(), family.end());
    std::ranges::sort(all, {}, &Figure::id_kode_report);
    return all;
}

} // namespace

std::span<const Figure> figures() {
    static const std::vector<Figure> all = allFigures();
    return all;
}

const Figure* findFigure(int id_kode_report) {
    const auto found = std::ranges::lower_bound(figures(), id_kode_report, {}, &Figure::id_kode_report);
    return found != figures().end() && found->id_kode_report == id_kode_report ? &*found : nullptr;
}

} // namespace run
