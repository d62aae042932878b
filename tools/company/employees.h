#pragma once

#include "tools/company/organisation.h"

#include <QDate>

#include <vector>

namespace company {

/// What is asked of the generator. The same options give the same rows.
struct Options {
    int employees = 60;
    int months = 3;
    QDate lastMonth = QDate::currentDate().addMonths(-1); ///< any day of the last month with attendance
    quint64 seed = 1;
    QString language = QString::fromUtf16(u"indonesia"); ///< a language column of the texts
};

/// The days that hold attendance.
struct Period {
    QDate first;
    QDate last;
};
/// Throws std::invalid_argument where the last month is no date.
[[nodiscard]] Period periodOf(const Options& options);

struct Employee {
    int id = 0;
    QString pin;
    QString nik; ///< null where the company gave none
    QString firstName;
    QString lastName; ///< null for people with one name
    bool female = false;
    int branch = 0;     ///< cab_id_auto
    int department = 0; ///< dept_id_auto
    int function = 0;   ///< func_id_auto
    int wage = 0;       ///< rupiah a month
    QDate birth;
    QDate begin;
    QDate resigned; ///< invalid while employed

    [[nodiscard]] Group group() const { return functions()[function - 1].group; }
    /// A newly hired one may not have been put into a group yet.
    [[nodiscard]] bool hasGroup() const { return id % 37 != 0; }
    [[nodiscard]] bool isActive() const { return !resigned.isValid(); }
    [[nodiscard]] bool isEmployedOn(QDate date) const {
        return begin <= date && (!resigned.isValid() || date <= resigned);
    }
};

[[nodiscard]] std::vector<Employee> makeEmployees(const Options& options);

/// Writes them and the reserved row -1.
void writeEmployees(db::Connection& main, const std::vector<Employee>& employees);

} // namespace company
