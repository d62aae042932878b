#include "tools/company/salary.h"

#include "tools/company/bulk_insert.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace company {

namespace {

struct ComponentRow {
    Component id = GajiPokok;
    QString code;
    QString name;
    enum Side { Earning, Deduction } side = Earning;
    enum Trait {
        None = 0,
        Varying = 1,    ///< the amount stands in z_pay_money
        Referred = 2,   ///< rules of other components may read it
        TakeHome = 4,   ///< paid out by transfer
        Annualised = 8, ///< counted once a year
        Loan = 16
    };
    int traits = None;

    [[nodiscard]] Flag has(Trait trait) const { return {(traits & trait) != 0}; }
};

const QList<ComponentRow>& components() {
    using Row = ComponentRow;
    static const QList<Row> list = {
        {GajiPokok, u"GPK"_s, u"Gaji Pokok"_s, Row::Earning, Row::Varying | Row::Referred | Row::TakeHome},
        {TunjanganJabatan, u"TJB"_s, u"Tunjangan Jabatan"_s, Row::Earning,
         Row::Varying | Row::Referred | Row::TakeHome},
        {UangMakan, u"UMK"_s, u"Uang Makan"_s, Row::Earning, Row::TakeHome},
        {UangTransport, u"TRP"_s, u"Uang Transport"_s, Row::Earning, Row::TakeHome},
        {TunjanganJaga, u"JGA"_s, u"Tunjangan Jaga"_s, Row::Earning, Row::None},
        {LemburHariKerja, u"LBK"_s, u"Lembur Hari Kerja"_s, Row::Earning, Row::Varying | Row::TakeHome},
        {LemburHariLibur, u"LBL"_s, u"Lembur Hari Libur"_s, Row::Earning, Row::Varying | Row::TakeHome},
        {LemburShift, u"LBS"_s, u"Tambahan Lembur Shift"_s, Row::Earning, Row::None},
        {PremiHadir, u"PRH"_s, u"Premi Hadir"_s, Row::Earning, Row::None},
        {TunjanganHariRaya, u"THR"_s, u"Tunjangan Hari Raya"_s, Row::Earning,
         Row::Varying | Row::TakeHome | Row::Annualised},
        {PotonganTerlambat, u"PTL"_s, u"Potongan Terlambat"_s, Row::Deduction, Row::None},
        {PotonganTidakHadir, u"PTH"_s, u"Potongan Tidak Hadir"_s, Row::Deduction, Row::Varying},
        {BpjsKesehatan, u"BKS"_s, u"BPJS Kesehatan"_s, Row::Deduction, Row::TakeHome},
        {BpjsHariTua, u"JHT"_s, u"BPJS Jaminan Hari Tua"_s, Row::Deduction, Row::TakeHome},
        {BpjsPensiun, u"JP"_s, u"BPJS Jaminan Pensiun"_s, Row::Deduction, Row::TakeHome},
        {IuranKoperasi, u"KOP"_s, u"Iuran Koperasi"_s, Row::Deduction, Row::Varying},
        {PinjamanKoperasi, u"PKO"_s, u"Angsuran Pinjaman Koperasi"_s, Row::Deduction, Row::Loan},
        {PinjamanKendaraan, u"PKD"_s, u"Angsuran Pinjaman Kendaraan"_s, Row::Deduction, Row::Loan},
    };
    return list;
}

struct GroupRow {
    Group id;
    QString code;
    QString name;
};

const QList<GroupRow>& groups() {
    static const QList<GroupRow> list = {{Manajemen, u"MGR"_s, u"Manajemen"_s},
                                         {Staf, u"STF"_s, u"Staf Bulanan"_s},
                                         {Produksi, u"PRD"_s, u"Produksi dan Gudang"_s},
                                         {Keamanan, u"KAM"_s, u"Keamanan"_s},
                                         {Harian, u"HRN"_s, u"Pekerja Harian"_s}};
    return list;
}

struct Amount {
    Component component;
    double rupiah;
};

/// What each employee has of its own. The hourly wage is 1/173 of the monthly one; a day's is 1/25.
QList<Amount> amountsOf(const Employee& employee) {
    const double hourly = std::round(employee.wage / 173.0);
    const double daily = std::round(employee.wage / 25.0);
    QList<Amount> amounts = {{GajiPokok, employee.group() == Harian ? daily : employee.wage},
                             {LemburHariKerja, hourly},
                             {LemburHariLibur, hourly},
                             {PotonganTidakHadir, daily}};
    if (employee.group() == Manajemen || functions()[employee.function - 1].name == u"Supervisor"_s)
        amounts << Amount{TunjanganJabatan, std::round(employee.wage * 0.15 / 10000) * 10000};
    if (employee.id % 3 == 0)
        amounts << Amount{IuranKoperasi, 50000};
    amounts.removeIf([rules = rulesOf(employee.group())](const Amount& amount) {
        return std::ranges::none_of(rules, [&](const Rule& rule) { return rule.component == amount.component; });
    });
    return amounts;
}

void writeComponents(db::Connection& main, const QDateTime& moment) {
    BulkInsert insert(main, "z_pay_com (com_id, com_kode, com_name, type, fluctuate, no_urut, param, disetahunkan, "
                            "take_home_pay, cara_bayar, pinjaman, lastupdate_date, lastupdate_user)");
    for (const ComponentRow& row : components()) {
        const Flag takeHome = row.has(ComponentRow::TakeHome);
        insert.row(int(row.id), row.code, row.name, int(row.side), row.has(ComponentRow::Varying), row.id * 5,
                   row.has(ComponentRow::Referred), row.has(ComponentRow::Annualised), takeHome, takeHome.on ? 1 : 0,
                   row.has(ComponentRow::Loan), moment, u"admin"_s);
    }
    insert.finish();
}

void writeGroups(db::Connection& main, const QDateTime& moment) {
    BulkInsert insert(main, "z_pay_grp (grp_id, kode_grp, grp_name, lastupdate_date, lastupdate_user)");
    for (const GroupRow& row : groups())
        insert.row(int(row.id), row.code, row.name, moment, u"admin"_s);
    insert.finish();
}

void writeRules(db::Connection& main) {
    BulkInsert insert(main, "z_pay_grp_com (com_id, grp_id, no_urut_ref, use_if_sum, min_if, use_kode_if, id_kode_if, "
                            "max_if, use_sum, use_kode_sum, id_kode_sum, operator_sum, konstanta_sum, operator_sum2, "
                            "nilai_rp, hitung, jenis)");
    for (const GroupRow& group : groups()) {
        int place = 0;
        for (const Rule& rule : rulesOf(group.id))
            insert.row(int(rule.component), int(group.id), ++place, Flag{rule.condition.kind != Source::None},
                       rule.lowest, int(rule.condition.kind), rule.condition.id, rule.highest,
                       Flag{rule.formula.kind != Source::None}, int(rule.formula.kind), rule.formula.id,
                       rule.firstOperator.isNull() ? u""_s : rule.firstOperator, rule.constant,
                       rule.secondOperator.isNull() ? u""_s : rule.secondOperator, rule.amount, rule.daily ? 1 : 0,
                       rule.join);
    }
    insert.finish();
}

void writeMembers(db::Connection& main, const std::vector<Employee>& employees, const QDateTime& moment) {
    BulkInsert members(main, "z_pay_grp_emp (grp_id, emp_id_auto, no_rek)");
    BulkInsert money(main, "z_pay_money (com_id, grp_id, emp_id_auto, nilai_rp, lastupdate_date, lastupdate_user)");
    for (const Employee& employee : employees) {
        if (!employee.hasGroup())
            continue;
        members.row(int(employee.group()), employee.id,
                    u"131-00-%1"_s.arg(qint64(employee.id) * 7919 % 9999991, 7, 10, '0'_L1));
        for (const Amount& amount : amountsOf(employee))
            money.row(int(amount.component), int(employee.group()), employee.id, amount.rupiah, moment, u"hrd"_s);
    }
    members.finish();
    money.finish();
}

} // namespace

void writeSalaryStructure(db::Connection& main, const std::vector<Employee>& employees, const Options& options) {
    const QDateTime moment(periodOf(options).first.addDays(-7), QTime(9, 30), Qt::UTC);
    writeComponents(main, moment);
    writeGroups(main, moment);
    writeRules(main);
    writeMembers(main, employees, moment);
}

} // namespace company
