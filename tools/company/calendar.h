#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>

#include <vector>

namespace company {

struct Day {
    QDate date;
    QByteArray literal; ///< the date as a quoted SQL literal
    bool publicHoliday = false;
};

/// The public holidays of a year in rising order, each date once: the fixed ones, those that follow Easter and those of
/// the Islamic year, by its arithmetic calendar.
[[nodiscard]] QList<QDate> publicHolidays(int year);

/// Every day from the first to the last one.
[[nodiscard]] std::vector<Day> daysBetween(QDate first, QDate last);

} // namespace company
