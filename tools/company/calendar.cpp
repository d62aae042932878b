#include "tools/company/calendar.h"

#include <QCalendar>
#include <QSet>

#include <algorithm>

namespace company {

namespace {

struct MonthDay {
    int month;
    int day;
};

// Western Easter Sunday by the arithmetic of the Gregorian calendar.
QDate easter(int year) {
    const int golden = year % 19;
    const int century = year / 100;
    const int correction = century - century / 4 - (8 * century + 13) / 25;
    const int epact = (19 * golden + correction + 15) % 30;
    const int moon = epact - (epact / 28) * (1 - (29 / (epact + 1)) * ((21 - golden) / 11));
    const int weekday = (year + year / 4 + moon + 2 - century + century / 4) % 7;
    return QDate(year, 3, 28).addDays(moon - weekday);
}

QList<QDate> islamicHolidays(int year) {
    // New year, the Prophet's birthday, the ascension, the two days of Idul Fitri, Idul Adha.
    static constexpr MonthDay feasts[] = {{1, 1}, {3, 12}, {7, 27}, {10, 1}, {10, 2}, {12, 10}};
    const QCalendar islamic(QCalendar::System::IslamicCivil);
    const int first = QDate(year, 1, 1).year(islamic);
    QList<QDate> dates;
    for (const int islamicYear : {first, first + 1})
        for (const MonthDay& feast : feasts)
            dates << islamic.dateFromParts(islamicYear, feast.month, feast.day);
    dates.removeIf([year](QDate date) { return date.year() != year; });
    return dates;
}

} // namespace

QList<QDate> publicHolidays(int year) {
    static constexpr MonthDay fixed[] = {{1, 1}, {5, 1}, {6, 1}, {8, 17}, {12, 25}};
    QList<QDate> dates = islamicHolidays(year);
    for (const MonthDay& day : fixed)
        dates << QDate(year, day.month, day.day);
    dates << easter(year).addDays(-2) << easter(year).addDays(39);
    std::ranges::sort(dates);
    dates.erase(std::ranges::unique(dates).begin(), dates.end());
    return dates;
}

std::vector<Day> daysBetween(QDate first, QDate last) {
    QSet<QDate> holidays;
    for (int year = first.year(); year <= last.year(); ++year)
        for (const QDate date : publicHolidays(year))
            holidays.insert(date);
    std::vector<Day> days;
    for (QDate date = first; date <= last; date = date.addDays(1))
        days.push_back({date, '\'' + date.toString(Qt::ISODate).toLatin1() + '\'', holidays.contains(date)});
    return days;
}

} // namespace company
