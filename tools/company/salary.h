#pragma once

#include "tools/company/employees.h"

namespace company {

/// Component numbers.
enum Component {
    GajiPokok = 1,
    TunjanganJabatan,
    UangMakan,
    UangTransport,
    TunjanganJaga,
    LemburHariKerja,
    LemburHariLibur,
    LemburShift,
    PremiHadir,
    TunjanganHariRaya,
    PotonganTerlambat,
    PotonganTidakHadir,
    BpjsKesehatan,
    BpjsHariTua,
    BpjsPensiun,
    IuranKoperasi,
    PinjamanKoperasi,
    PinjamanKendaraan
};

/// Where a condition or a formula takes its value from.
struct Source {
    enum Kind { None = -1, Figure = 0, Other = 1 };
    Kind kind = None;
    int id = 0; ///< number of the attendance figure or of the component
};

/// One row of z_pay_grp_com, without its group and its place.
struct Rule {
    Component component = GajiPokok;
    Source condition{};
    double lowest = 0;
    double highest = 0;
    Source formula{};
    QString firstOperator{};
    double constant = 0;
    QString secondOperator{};
    double amount = 0; ///< rupiah
    bool daily = false;
    int join = 0; ///< to the rows before: 0 added, 1 tier, 2 replacing
};

[[nodiscard]] std::vector<Rule> rulesOf(Group group);

/// Components, groups with their rules and members, and the amounts of each employee.
void writeSalaryStructure(db::Connection& main, const std::vector<Employee>& employees, const Options& options);

} // namespace company
