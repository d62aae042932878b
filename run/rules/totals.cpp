#include "run/rules/totals.h"

#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/money.h"
#include "toolkit/text/number_text.h"

#include <algorithm>
#include <map>
#include <set>

namespace run {

namespace {

/// Rounds the rows of a line in place; gives earnings minus deductions.
qint32 netOf(RunView& view, int line) {
    qint32 earnings = 0;
    qint32 deductions = 0;
    fault::dropFault("rincian selebihnya dalam jumlah gaji", [&] {
        for (int row = 0; row < view.rowCount(line); ++row) {
            const RowAmount amount = view.row(line, row);
            const qint32 whole = wrapped32(wholeRupiah(moneyOfRupiah(amount.subtot_payroll)));
            view.setAmount(line, row, whole);
            qint32& sum = amount.type == 0 ? earnings : deductions;
            sum = wrappedSum(sum, whole);
        }
    });
    return wrappedDifference(earnings, deductions);
}

/// Up to the next multiple of the unit; a multiple and what is not positive stay.
qint32 raisedToUnit(qint32 net, qint32 unit) {
    if (unit <= 0)
        return net;
    const qint32 remainder = net % unit;
    return remainder > 0 ? wrappedSum(wrappedDifference(net, remainder), unit) : net;
}

std::set<int> employeesWithLine(const Run& computed, const std::vector<RemovedLine>& removed) {
    std::vector<bool> isRemoved(computed.lines.size());
    for (const RemovedLine& gone : removed)
        isRemoved[std::size_t(gone.line)] = true;
    std::set<int> employees;
    for (std::size_t line = 0; line < computed.lines.size(); ++line)
        if (!isRemoved[line])
            employees.insert(computed.lines[line].emp_id_auto);
    return employees;
}

WhyLeftOut whyRemoved(const Line& line, const RemovedLine& gone) {
    if (!line.fault.isEmpty())
        return WhyLeftOut::Fault;
    if (!line.isRuled)
        return WhyLeftOut::NoRule;
    return gone.hasDeductions ? WhyLeftOut::Deductions : WhyLeftOut::NothingPositive;
}

} // namespace

double hitung(RunView& view, double round_value) {
    qint32 total = 0;
    fault::dropFault("karyawan selebihnya dalam total penggajian", [&] {
        for (int line = 0; line < view.lineCount(); ++line) {
            const qint32 net = netOf(view, line);
            const qint32 tot_payroll = raisedToUnit(net, rounded32(round_value));
            view.setTotal(line, tot_payroll);
            total = wrappedSum(total, tot_payroll);
        }
    });
    return total;
}

std::vector<RemovedLine> hitung2(RunView& view) {
    std::vector<RemovedLine> removed;
    for (int line = view.lineCount() - 1; line >= 0; --line) {
        bool hasDeductions = false;
        for (int row = view.rowCount(line) - 1; row >= 0; --row)
            if (const RowAmount amount = view.row(line, row); amount.subtot_payroll <= 0)
                view.deleteRow(line, row);
            else
                hasDeductions |= amount.type != 0;
        if (view.tot_payroll(line) > 0)
            continue;
        view.deleteLine(line);
        removed.push_back({line, hasDeductions});
    }
    return removed;
}

std::vector<LeftOut> leftOut(const Run& computed, const std::vector<RemovedLine>& removed) {
    const std::set<int> paid = employeesWithLine(computed, removed);
    std::vector<LeftOut> people;
    std::map<int, std::size_t> places; // by employee: somebody in two groups has two lines
    for (auto gone = removed.rbegin(); gone != removed.rend(); ++gone) {
        const Line& line = computed.lines[std::size_t(gone->line)];
        if (paid.contains(line.emp_id_auto))
            continue;
        const LeftOut person{line.pin, line.nik, line.nama, whyRemoved(line, *gone), line.fault};
        const auto [place, isFirst] = places.try_emplace(line.emp_id_auto, people.size());
        if (isFirst)
            people.push_back(person);
        else if (person.why < people[place->second].why)
            people[place->second] = person;
    }
    return people;
}

QString differingSum(const QString& caption, double stored, double sumOfLines) {
    const QString sum = groupedInteger(sumOfLines);
    return sum == groupedInteger(stored) ? QString() : caption + sum;
}

} // namespace run
