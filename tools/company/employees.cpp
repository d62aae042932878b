#include "tools/company/employees.h"

#include "tools/company/bulk_insert.h"
#include "tools/company/dice.h"
#include "tools/company/names.h"

#include <QDateTime>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace company {

namespace {

// What twenty years and several machines leave behind: leading zeros, letters in front, blanks, letters glued on.
QString pinOf(int id) {
    switch (id % 13) {
    case 3:
        return u"%1"_s.arg(id, 6, 10, '0'_L1);
    case 5:
        return u"A %1"_s.arg(id);
    case 7:
        return u"CB 2 %1"_s.arg(id, 4, 10, '0'_L1);
    case 11:
        return u"VIP%1"_s.arg(id);
    default:
        return QString::number(id);
    }
}

int functionFor(int share) {
    int index = 0;
    for (; index + 1 < functions().size() && share >= functions()[index].share; ++index)
        share -= functions()[index].share;
    return index + 1;
}

void giveNames(Employee& employee, Dice& dice) {
    employee.female = dice.chance(420);
    employee.firstName = dice.pick(employee.female ? femaleNames() : maleNames());
    if (!dice.chance(80))
        employee.lastName = dice.pick(familyNames());
    if (employee.id % 19 != 0)
        employee.nik = u"%1.%2"_s.arg(employee.begin.year()).arg(employee.id, 5, 10, '0'_L1);
}

void givePost(Employee& employee, Dice& dice) {
    employee.function = functionFor(dice.below(1000));
    const Function& function = functions()[employee.function - 1];
    employee.department = dice.pick(function.departments);
    employee.branch = dice.chance(500) ? 1 : dice.between(2, int(branches().size()));
    employee.wage = dice.between(function.lowestWage / 50, function.highestWage / 50) * 50 * 1000;
}

// Every 17th has left, half of them inside the period; every 23rd came inside it.
void giveDates(Employee& employee, const Period& period, Dice& dice) {
    const int length = int(period.first.daysTo(period.last));
    employee.begin = employee.id % 23 == 0 ? period.first.addDays(dice.below(length))
                                           : period.first.addDays(-dice.between(30, 12 * 365));
    if (employee.id % 17 == 0)
        employee.resigned =
            dice.chance(500) ? period.first.addDays(dice.below(length)) : period.first.addDays(-dice.between(1, 25));
    employee.resigned = employee.resigned.isValid() ? qMax(employee.resigned, employee.begin) : employee.resigned;
    employee.birth = employee.begin.addDays(-dice.between(19 * 365, 45 * 365));
}

} // namespace

Period periodOf(const Options& options) {
    if (!options.lastMonth.isValid())
        throw std::invalid_argument("a company needs the last month of its attendance");
    const QDate month(options.lastMonth.year(), options.lastMonth.month(), 1);
    return {month.addMonths(1 - options.months), month.addMonths(1).addDays(-1)};
}

std::vector<Employee> makeEmployees(const Options& options) {
    const Period period = periodOf(options);
    std::vector<Employee> employees;
    for (int id = 1; id <= options.employees; ++id) {
        Dice dice{options.seed, quint64(id)};
        Employee& employee = employees.emplace_back();
        employee.id = id;
        employee.pin = pinOf(id);
        giveDates(employee, period, dice);
        giveNames(employee, dice);
        givePost(employee, dice);
    }
    return employees;
}

void writeEmployees(db::Connection& main, const std::vector<Employee>& employees) {
    BulkInsert emp(main,
                   "emp (emp_id_auto, nik, cab_id_auto, dept_id_auto, func_id_auto, first_name, last_name, gender, "
                   "birth_date, address, phone, ssn, married, education, dependent, pin, begin_date, resign_date, "
                   "lastupdate_date, lastupdate_user, emp_status, priv)");
    emp.row(-1, QString(), 1, 1, 1, u"(dicadangkan)"_s, QString(), 0, nullptr, QString(), QString(), QString(), 0,
            QString(), 0, u"-1"_s, nullptr, nullptr, nullptr, QString(), 0, 0);
    static const QString schooling[] = {u"SMP"_s, u"SMA"_s, u"SMK"_s, u"D3"_s, u"S1"_s};
    for (const Employee& one : employees) {
        Dice dice{quint64(one.id), 7};
        const QString address =
            one.id % 11 == 0 ? QString() : u"%1 No. %2"_s.arg(dice.pick(streets())).arg(dice.between(1, 120));
        const QString card = u"32%1%2"_s.arg(one.birth.toString(u"ddMMyy"_s)).arg(one.id, 8, 10, '0'_L1);
        emp.row(one.id, one.nik, one.branch, one.department, one.function, one.firstName, one.lastName,
                one.female ? 1 : 0, one.birth, address, u"0812-%1"_s.arg(dice.between(1000000, 9999999)), card,
                dice.below(2), dice.pick(schooling), dice.below(4), one.pin, one.begin, one.resigned,
                QDateTime(one.begin, QTime(8, 0), Qt::UTC), u"admin"_s, one.isActive() ? 0 : 1, 0);
    }
    emp.finish();
}

} // namespace company
