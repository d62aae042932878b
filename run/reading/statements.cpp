#include "run/reading/statements.h"

#include "run/reading/memory_lookups.h"
#include "schema/settings_keys.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/bool_text.h"

#include <QStringList>

namespace run {

namespace {

using namespace Qt::StringLiterals;

constexpr auto ruleSelect = "select grp_com.*, com.com_kode, com.com_name, com.type as typex, com.param, "
                            "if(com.type=0, 'Penerimaan', 'Potongan') as type, com.no_urut from z_pay_grp_com as "
                            "grp_com "_L1;
constexpr auto componentJoin = "left join z_pay_com as com on grp_com.com_id=com.com_id "_L1;
constexpr auto ruleOrder = "order by com.type, com.no_urut, grp_com.no_urut_ref "_L1;

void readFlag(db::Connection& app, QLatin1String param_id, bool& flag) {
    const auto value = readingOf([&] {
        db::Result found = app.query(u"Select * from global_setting where param_id='"_s + param_id + u"' "_s);
        return found.next() ? std::optional(found.text(u"param_value"_s)) : std::nullopt;
    });
    fault::dropFault("pengaturan hadir penuh", [&] {
        if (const std::optional<QString>& stored = value.value())
            flag = boolFromText(*stored);
    });
}

QString day(const QDate& date) {
    return date.toString(u"yyyy-MM-dd"_s);
}

QString loanDates(const Selections& selections) {
    if (selections.loans == LoanTest::Period)
        return u"DATE(byr.tgl_bayar)>=DATE('%1') and DATE(byr.tgl_bayar)<DATE('%2') "_s.arg(
            day(selections.period.tanggal_awal), day(selections.period.tanggal_akhir.addDays(1)));
    return u"MONTH(byr.tgl_bayar)=MONTH('%1') and YEAR(byr.tgl_bayar)=YEAR('%1') "_s.arg(day(selections.loanMonth));
}

QString loanSelect(const Selections& selections, const QString& employee) {
    return u"select byr.emp_id_auto, byr.id_kredit, sum(byr.debet) as jml_angsuran , com.com_id, com.com_kode, "
           "com.com_name from zx_bayar_kredit as byr left join zx_kredit_m as m on byr.id_kredit=m.id_kredit left join "
           "zx_jns_krd as jns on m.krd_id=jns.krd_id left join z_pay_com as com on jns.com_id=com.com_id where "_s +
           loanDates(selections) + employee +
           u"group by byr.emp_id_auto, byr.id_kredit, com.com_id, com.com_kode, com.com_name "
           "order by byr.emp_id_auto, byr.id_kredit, com.com_id"_s;
}

} // namespace

QString numberList(std::span<const int> numbers) {
    QStringList texts;
    for (const int number : numbers)
        texts << QString::number(number);
    return u'(' + (texts.isEmpty() ? u"NULL"_s : texts.join(u',')) + u')';
}

QString membersStatement(int grp_id, const base::Branch& session_cab_id) {
    // Employees whose PINs end in the same word follow by their key, else the server's mood would order them.
    return u"SELECT e.emp_id_auto, e.pin, e.nik, concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama "
           "FROM emp as e inner join z_pay_grp_emp as grp_emp on e.emp_id_auto=grp_emp.emp_id_auto where "
           "grp_emp.grp_id=%1 and e.emp_status=0 "_s.arg(grp_id) +
           session_cab_id.furtherCondition(u"e.cab_id_auto"_s) +
           u"order by SUBSTRING_INDEX(e.pin, '', 1), SUBSTRING_INDEX(e.pin, ' ', -1) , e.emp_id_auto"_s;
}

std::vector<Employee> readEmployees(db::Result rows) {
    std::vector<Employee> employees;
    while (rows.next())
        employees.push_back(
            {int(rows.integer(u"emp_id_auto"_s)), rows.text(u"pin"_s), rows.text(u"nik"_s), rows.text(u"nama"_s)});
    return employees;
}

QString rulesStatement(const RuleKey& key) {
    return ruleSelect +
           u"left join z_pay_grp as grp on grp_com.grp_id=grp.grp_id left join z_pay_grp_emp as grp_emp on "
           "grp.grp_id=grp_emp.grp_id "_s +
           componentJoin +
           u"where grp_com.grp_id=%1 and grp_com.com_id=%2 and grp_emp.emp_id_auto=%3 "_s.arg(key.grp_id)
               .arg(key.com_id)
               .arg(key.emp_id_auto) +
           ruleOrder;
}

QString allRulesStatement(std::span<const int> groups, std::span<const int> components) {
    return ruleSelect + componentJoin +
           u"where grp_com.grp_id in %1 and grp_com.com_id in %2 "_s.arg(numberList(groups), numberList(components)) +
           ruleOrder;
}

QString membershipsStatement(std::span<const int> groups) {
    return u"select grp_emp.grp_id, grp_emp.emp_id_auto from z_pay_grp as grp inner join z_pay_grp_emp as grp_emp on "
           "grp.grp_id=grp_emp.grp_id where grp.grp_id in "_s +
           numberList(groups);
}

Rule readRule(const db::Result& row) {
    const auto number = [&](const QString& name) { return int(row.integer(name)); };
    return {.com_id = number(u"com_id"_s),
            .grp_id = number(u"grp_id"_s),
            .hitung = number(u"hitung"_s),
            .jenis = number(u"jenis"_s),
            .use_if_sum = number(u"use_if_sum"_s),
            .use_kode_if = number(u"use_kode_if"_s),
            .id_kode_if = number(u"id_kode_if"_s),
            .min_if = row.real(u"min_if"_s),
            .max_if = row.real(u"max_if"_s),
            .use_sum = number(u"use_sum"_s),
            .use_kode_sum = number(u"use_kode_sum"_s),
            .id_kode_sum = number(u"id_kode_sum"_s),
            .operator_sum = operatorOf(row.text(u"operator_sum"_s)),
            .konstanta_sum = row.real(u"konstanta_sum"_s),
            .operator_sum2 = operatorOf(row.text(u"operator_sum2"_s)),
            .nilai_rp = row.real(u"nilai_rp"_s),
            .com_kode = row.text(u"com_kode"_s),
            .com_name = row.text(u"com_name"_s),
            .typex = number(u"typex"_s),
            .param = number(u"param"_s)};
}

QString moneyStatement(const RuleKey& key) {
    return u"select * from z_pay_money where grp_id=%1 and com_id=%2 and emp_id_auto=%3 "_s.arg(key.grp_id)
        .arg(key.com_id)
        .arg(key.emp_id_auto);
}

QString allMoneyStatement(std::span<const int> groups, std::span<const int> components) {
    return u"select emp_id_auto, grp_id, com_id, nilai_rp from z_pay_money where grp_id in %1 and com_id in %2"_s.arg(
        numberList(groups), numberList(components));
}

QString referenceStatement(int com_id) {
    return u"select * from z_pay_com where param=-1 and com_id=%1 "_s.arg(com_id);
}

QString allReferencesStatement(std::span<const int> components) {
    return u"select com_id, com_name from z_pay_com where param=-1 and com_id in "_s + numberList(components);
}

QString loansStatement(const Selections& selections, int emp_id_auto) {
    return loanSelect(selections, u"and byr.emp_id_auto=%1 "_s.arg(emp_id_auto));
}

QString allLoansStatement(const Selections& selections) {
    return loanSelect(selections, {});
}

LoanPayment readLoanPayment(const db::Result& row) {
    return {int(row.integer(u"com_id"_s)), row.text(u"com_kode"_s), row.text(u"com_name"_s),
            row.real(u"jml_angsuran"_s)};
}

CountSettings readCountSettings(db::Connection& main) {
    CountSettings settings;
    db::Result rows = main.query(u"select sum_id, sum_as from sum_report"_s);
    while (rows.next())
        settings.insert(int(rows.integer(0)), int(rows.integer(1)));
    return settings;
}

HolidayTimes readHolidayTimes(db::Connection& main, const Window& window) {
    HolidayTimes holidays;
    db::Result rows = main.query(
        u"select TO_DAYS(holiday_date) as hari, count(*) from holiday where DATE(holiday_date)>=DATE('%1') and "
        "DATE(holiday_date)<DATE('%2') group by hari"_s.arg(day(window.tanggal_awal),
                                                            day(window.tanggal_akhir.addDays(1))));
    while (rows.next())
        holidays.insert(int(rows.integer(0)), int(rows.integer(1)));
    return holidays;
}

Hadir100 readHadir100(db::Connection& app) {
    Hadir100 counts;
    readFlag(app, schema::hadir100Hadir, counts.hadir);
    readFlag(app, schema::hadir100Izin, counts.izin);
    readFlag(app, schema::hadir100Sakit, counts.sakit);
    readFlag(app, schema::hadir100Cuti, counts.cuti);
    readFlag(app, schema::hadir100Libur, counts.libur);
    return counts;
}

} // namespace run
