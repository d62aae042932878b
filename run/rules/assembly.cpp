#include "run/rules/assembly.h"

#include "run/rules/evaluator.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/rounding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace run {

namespace {

constexpr int employeeLimit = 200;

class Assembly final {
public:
    Assembly(Run& run, const Selections& selections, Lookups& lookups, const EmployeeDone& done);

    void everyone();
    [[nodiscard]] Notice proses_karyawan_pilih(const EmployeeChoice& choice);

private:
    void hitung_karyawan(int grp_id, const Employee& employee);
    void computeComponents(int grp_id, Line& line);
    static void computePeriod(std::span<const Rule> rules, const Component& component, Evaluator& evaluator,
                              Line& line);
    void addLoans(Line& line);

    Run& m_run;
    const Selections& m_selections;
    Lookups& m_lookups;
    const EmployeeDone& m_done;
    std::vector<ChosenComponent> m_vir_tb2;
    int m_employees = 0;
};

Assembly::Assembly(Run& run, const Selections& selections, Lookups& lookups, const EmployeeDone& done) :
    m_run(run), m_selections(selections), m_lookups(lookups), m_done(done), m_vir_tb2(selections.components) {
    std::ranges::stable_sort(m_vir_tb2, {}, [](const ChosenComponent& c) { return std::pair(c.type, c.no_urut); });
}

void Assembly::everyone() {
    fault::dropFault("group selebihnya", [&] {
        for (const int grp_id : m_selections.groups)
            fault::dropFault("karyawan selebihnya dalam group", [&] {
                for (const Employee& employee : m_lookups.members(grp_id))
                    hitung_karyawan(grp_id, employee);
            });
    });
}

Notice Assembly::proses_karyawan_pilih(const EmployeeChoice& choice) {
    if (choice.clb_emp_id.empty())
        return Notice::NoEmployees;
    int ticked = 0;
    for (const EmployeeItem& item : choice.clb_emp_id) {
        if (!item.ticked)
            continue;
        ++ticked;
        const auto found = std::ranges::find(choice.vir_emp, item.emp_id_auto,
                                             [](const Candidate& c) { return c.employee.emp_id_auto; });
        if (found != choice.vir_emp.end())
            hitung_karyawan(found->grp_id, found->employee);
    }
    return ticked > employeeLimit ? Notice::MoreThan200Employees : Notice::None;
}

void Assembly::hitung_karyawan(int grp_id, const Employee& employee) {
    Line& line = m_run.lines.emplace_back();
    line.emp_id_auto = employee.emp_id_auto;
    line.pin = employee.pin;
    line.nik = employee.nik;
    line.nama = employee.nama;
    fault::dropFault(
        "komponen selebihnya seorang karyawan", [&] { computeComponents(grp_id, line); }, NoteFault{line});
    if (m_selections.loans != LoanTest::None)
        fault::dropFault("pinjaman selebihnya seorang karyawan", [&] { addLoans(line); });
    if (m_done)
        m_done(++m_employees);
}

void Assembly::computeComponents(int grp_id, Line& line) {
    Evaluator evaluator(m_lookups, m_selections.period, line);
    for (const ChosenComponent& chosen : m_vir_tb2) {
        const std::span<const Rule> rules = m_lookups.rules({grp_id, chosen.com_id, line.emp_id_auto});
        if (rules.empty())
            continue;
        line.isRuled = true;
        const Component component{chosen.com_id, rules.front().com_kode, rules.front().com_name};
        if (rules.front().hitung == 0)
            computePeriod(rules, component, evaluator, line);
        else
            evaluator.hitung_perhari(grp_id, component);
    }
}

void Assembly::computePeriod(std::span<const Rule> rules, const Component& component, Evaluator& evaluator,
                             Line& line) {
    fault::dropFault(
        "aturan selebihnya sebuah komponen",
        [&] {
            for (const Rule& rule : rules)
                evaluator.hitung_aturan(rule, component);
        },
        NoteFault{line});
}

void Assembly::addLoans(Line& line) {
    // One count for the employee, not one for each component: it starts again with every new row.
    int count = 0;
    for (const LoanPayment& loan : m_lookups.loanPayments(line.emp_id_auto)) {
        if (loan.com_id == 0)
            continue;
        const auto row = std::ranges::find(line.rows, loan.com_id, &Row::com_id);
        if (row == line.rows.end()) {
            count = 1;
            line.rows.push_back({.com_id = loan.com_id,
                                 .com_kode = loan.com_kode,
                                 .com_name = loan.com_name,
                                 .subtot_payroll = loan.jml_angsuran,
                                 .type = 1,
                                 .jml_faktor = 1,
                                 .kondisi = u" x Angsuran"_s});
        } else {
            row->subtot_payroll = double(Extended(row->subtot_payroll) + loan.jml_angsuran);
            row->jml_faktor = bulat_desimal(++count);
        }
    }
}

} // namespace

Notice proses(Run& run, const Selections& selections, Lookups& lookups, const EmployeeDone& done) {
    run.lines.clear();
    Assembly assembly(run, selections, lookups, done);
    if (selections.employees)
        return assembly.proses_karyawan_pilih(*selections.employees);
    assembly.everyone();
    return Notice::None;
}

} // namespace run
