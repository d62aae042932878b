#include "tools/company/attendance.h"

#include <gtest/gtest.h>

namespace {

using company::Attendance;
using company::Employee;

constexpr int manager = 2, administrator = 4, productionOperator = 7, guard = 10;

/// What many employees of one post did between two days.
struct Tally {
    int shifts = 0;
    int offShifts = 0;
    int statuses = 0;
    int rests = 0;
    int freeHours = 0;

    friend bool operator==(const Tally&, const Tally&) = default;
};

Employee employee(int id, int function) {
    Employee one;
    one.id = id;
    one.function = function;
    one.begin = QDate(2020, 1, 1);
    return one;
}

Tally tallyOf(int function, QDate date) {
    Tally tally;
    const company::Day day = company::daysBetween(date, date).front();
    for (int id = 1; id <= 500; ++id) {
        const Attendance one = company::attendanceOf(employee(id, function), day, 1);
        tally.shifts += one.shift.has_value();
        tally.offShifts += one.shift && one.shift->dayOff;
        tally.statuses += one.status.has_value();
        tally.rests += one.status && one.status->status == company::Libur && one.status->dayOff;
        tally.freeHours += one.freeHours.has_value();
    }
    return tally;
}

TEST(Attendance, EveryDayHasAShiftOrAStatusAndDaysOffAreMarked) {
    const QDate monday(2026, 10, 5), saturday(2026, 10, 10), holiday(2026, 8, 17);
    const Tally working = tallyOf(administrator, monday);
    EXPECT_EQ(working.shifts + working.statuses, 500);
    EXPECT_EQ(working.rests + working.offShifts, 0);
    EXPECT_GT(working.shifts, 450);
    EXPECT_GT(working.statuses, 5);
    EXPECT_EQ(tallyOf(manager, saturday), (Tally{.statuses = 500, .rests = 500}));
    EXPECT_EQ(tallyOf(productionOperator, saturday).rests, 0);
    const Tally publicHoliday = tallyOf(guard, holiday);
    EXPECT_EQ(publicHoliday.offShifts + publicHoliday.rests, 500);
    EXPECT_GT(publicHoliday.offShifts, 10);
    EXPECT_GT(publicHoliday.freeHours, 100);
}

TEST(Attendance, EndsAndBeginsWithTheEmployment) {
    Employee one = employee(1, administrator);
    one.begin = QDate(2026, 10, 6);
    one.resigned = QDate(2026, 10, 8);
    std::string seen;
    for (const company::Day& day : company::daysBetween(QDate(2026, 10, 5), QDate(2026, 10, 9))) {
        const Attendance at = company::attendanceOf(one, day, 1);
        seen += at.shift || at.status ? 'x' : '-';
    }
    EXPECT_EQ(seen, "-xxx-");
}

TEST(Attendance, HoursWorkedAgreeWithLatenessAndOvertime) {
    const company::Day day = company::daysBetween(QDate(2026, 10, 6), QDate(2026, 10, 6)).front();
    for (int id = 1; id <= 3000; ++id)
        if (const auto shift = company::attendanceOf(employee(id, productionOperator), day, 1).shift) {
            ASSERT_EQ(shift->duration.hundredths + shift->late.hundredths + shift->early.hundredths,
                      700 + shift->overtime.hundredths)
                << id;
        }
}

} // namespace
