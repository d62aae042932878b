#include "tools/company/attendance.h"

#include <gtest/gtest.h>

namespace {

using company::Attendance;
using company::Employee;

constexpr int manager = 2;
constexpr int administrator = 4;
constexpr int productionOperator = 7;
constexpr int guard = 10;

/// What many employees of one post did between two days.
struct Tally {
    int shifts = 0;
    int offShifts = 0;
    int statuses = 0;
    int rests = 0;
    int freeHours = 0;

    friend bool operator==(const Tally&, const Tally&) = default;
};

void count(Tally& tally, const Attendance& one) {
    tally.shifts += one.shift.has_value();
    tally.offShifts += one.shift && one.shift->dayOff;
    tally.statuses += one.status.has_value();
    tally.rests += one.status && one.status->status == company::Libur && one.status->dayOff;
    tally.freeHours += one.freeHours.has_value();
}

Tally tallyOf(int function, QDate first, QDate last) {
    Tally tally;
    for (int id = 1; id <= 500; ++id) {
        Employee employee;
        employee.id = id;
        employee.function = function;
        employee.begin = QDate(2020, 1, 1);
        for (const company::Day& day : company::daysBetween(first, last))
            count(tally, company::attendanceOf(employee, day, 1));
    }
    return tally;
}

TEST(Attendance, EveryDayHasAShiftOrAStatusAndDaysOffAreMarked) {
    const QDate monday(2026, 10, 5);
    const QDate saturday(2026, 10, 10);
    const QDate holiday(2026, 8, 17);
    const Tally working = tallyOf(administrator, monday, monday);
    EXPECT_EQ(working.shifts + working.statuses, 500);
    EXPECT_EQ(working.rests + working.offShifts, 0);
    EXPECT_GT(working.shifts, 450);
    EXPECT_GT(working.statuses, 5);

    EXPECT_EQ(tallyOf(manager, saturday, saturday), (Tally{.statuses = 500, .rests = 500}));
    EXPECT_EQ(tallyOf(productionOperator, saturday, saturday).rests, 0);

    const Tally publicHoliday = tallyOf(guard, holiday, holiday);
    EXPECT_EQ(publicHoliday.offShifts + publicHoliday.rests, 500);
    EXPECT_GT(publicHoliday.offShifts, 10);
    EXPECT_GT(publicHoliday.freeHours, 100);
}

TEST(Attendance, EndsAndBeginsWithTheEmployment) {
    Employee employee;
    employee.id = 1;
    employee.function = administrator;
    employee.begin = QDate(2026, 10, 6);
    employee.resigned = QDate(2026, 10, 8);
    std::string seen;
    for (const company::Day& day : company::daysBetween(QDate(2026, 10, 5), QDate(2026, 10, 9))) {
        const Attendance one = company::attendanceOf(employee, day, 1);
        seen += one.shift || one.status ? 'x' : '-';
    }
    EXPECT_EQ(seen, "-xxx-");
}

TEST(Attendance, HoursWorkedAgreeWithLatenessAndOvertime) {
    for (int id = 1; id <= 3000; ++id) {
        Employee employee;
        employee.id = id;
        employee.function = productionOperator;
        employee.begin = QDate(2020, 1, 1);
        const company::Day day = company::daysBetween(QDate(2026, 10, 6), QDate(2026, 10, 6)).front();
        const auto shift = company::attendanceOf(employee, day, 1).shift;
        if (!shift)
            continue;
        ASSERT_EQ(shift->duration.hundredths + shift->late.hundredths + shift->early.hundredths,
                  700 + shift->overtime.hundredths)
            << id;
    }
}

} // namespace
