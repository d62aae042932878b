#pragma once

#include "tools/company/bulk_insert.h"
#include "tools/company/calendar.h"
#include "tools/company/employees.h"

#include <optional>

namespace company {

/// One shift as the attendance machines' suite judges it. All amounts are hours.
struct Shift {
    bool valid = true;
    Hours late;
    Hours early;
    Hours overtime;
    Hours duration; ///< time worked; overtime included
    bool dayOff = false;
    bool shiftOvertime = false; ///< overtime by the shift, not by the hour
    Hours break1;
    Hours maxBreak;
    Hours break2;
    Hours maxBreak2;
};

/// Values of absent_id.
enum Status {
    HadirIzin = 1,
    TidakHadir,
    Izin,
    Cuti,
    Sakit,
    Libur,
    Cadangan1,
    Cadangan2,
    Cadangan3,
    AktivitasKerja,
    AktivitasBukanKerja,
    AktivitasLain
};

struct DayStatus {
    Status status = Libur;
    Hours duration;
    bool dayOff = false;
};

struct Activity {
    Status kind = AktivitasKerja;
    Hours amount;
};

struct FreeHours {
    Hours duration;
    Hours overtime;
};

/// What one employee did on one day: as a rule a shift or a status.
struct Attendance {
    std::optional<Shift> shift;
    std::optional<Shift> secondShift;
    std::optional<DayStatus> status;
    std::optional<Activity> activity;
    std::optional<FreeHours> freeHours;
};

/// Depends on the seed, the employee and the day only.
[[nodiscard]] Attendance attendanceOf(const Employee& employee, const Day& day, quint64 seed);

/// Writes the attendance of every employee on every day of the period, and the holidays of its years.
void writeAttendance(db::Connection& main, const std::vector<Employee>& employees, const Options& options);

} // namespace company
