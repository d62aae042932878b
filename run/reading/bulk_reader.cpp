#include "run/reading/bulk_reader.h"

#include "run/reading/figure_reader.h"
#include "run/reading/figures.h"
#include "run/reading/statements.h"

namespace run {

namespace {

using namespace Qt::StringLiterals;
using Grain = FigureRead::Grain;
using Form = FigureRead::Form;

Memberships readMemberships(db::Result rows) {
    Memberships memberships;
    while (rows.next())
        memberships.insert({int(rows.integer(0)), int(rows.integer(1))});
    return memberships;
}

RulesByComponent readRulesByComponent(db::Result rows) {
    RulesByComponent rules;
    while (rows.next()) {
        const Rule rule = readRule(rows);
        rules[{rule.grp_id, rule.com_id}].push_back(rule);
    }
    return rules;
}

MoneyByEmployee readMoney(db::Result rows) {
    MoneyByEmployee money;
    while (rows.next())
        money.insert({int(rows.integer(0)), {int(rows.integer(1)), int(rows.integer(2))}}, rows.real(3));
    return money;
}

QHash<int, QString> readNames(db::Result rows) {
    QHash<int, QString> names;
    while (rows.next())
        names.insert(int(rows.integer(0)), rows.text(1));
    return names;
}

LoansByEmployee readLoanPayments(db::Result rows) {
    LoansByEmployee loans;
    while (rows.next())
        loans[int(rows.integer(u"emp_id_auto"_s))].push_back(readLoanPayment(rows));
    return loans;
}

} // namespace

BulkReader::BulkReader(db::Connection& main, db::Connection& app, const SessionSelections& selections,
                       std::function<void(int)> done) :
    m_main(main),
    m_app(app), m_selections(selections), m_done(std::move(done)) {
    for (const ChosenComponent& component : selections.components)
        m_components.push_back(component.com_id);
}

LookupTables BulkReader::read() {
    for (const int employee : m_selections.employees ? tickedEmployees() : memberEmployees())
        m_tables.places.insert(employee, int(m_tables.places.size()));
    if (m_selections.loans != LoanTest::None)
        m_tables.loans = reading(allLoansStatement(m_selections), readLoanPayments);
    if (!m_tables.places.empty() && !m_components.empty())
        readRules();
    return std::move(m_tables);
}

std::set<int> BulkReader::memberEmployees() {
    std::set<int> employees;
    for (const int grp_id : m_selections.groups) {
        const auto members = reading(membersStatement(grp_id, m_selections.session_cab_id), readEmployees);
        m_tables.members[grp_id] = members;
        m_groups.insert(grp_id);
        if (!members.fault())
            for (const Employee& employee : members.value())
                employees.insert(employee.emp_id_auto);
    }
    return employees;
}

std::set<int> BulkReader::tickedEmployees() {
    std::set<int> employees;
    for (const EmployeeItem& item : m_selections.employees->clb_emp_id)
        if (item.ticked)
            employees.insert(item.emp_id_auto);
    // The group of a candidate need not be chosen any more: the list is older than the last tick of a group.
    for (const Candidate& candidate : m_selections.employees->vir_emp)
        m_groups.insert(candidate.grp_id);
    return employees;
}

void BulkReader::readRules() {
    const std::vector<int> groups(m_groups.begin(), m_groups.end());
    m_tables.rules = reading(allRulesStatement(groups, m_components), readRulesByComponent);
    m_tables.memberships = reading(membershipsStatement(groups), readMemberships);
    if (m_tables.rules.fault() || m_tables.rules.value().isEmpty())
        return;
    m_tables.money = reading(allMoneyStatement(groups, m_components), readMoney);
    for (const std::vector<Rule>& rules : m_tables.rules.value())
        noteRules(rules);
    readWhatRulesName();
}

void BulkReader::readWhatRulesName() {
    if (!m_references.empty())
        m_tables.referenceNames =
            reading(allReferencesStatement(std::vector(m_references.begin(), m_references.end())), readNames);
    noteFullAttendance();
    FigureReader figures(m_main, m_selections.period, m_tables.places, [this] { step(); });
    m_tables.figures = figures.read(m_figures);
}

void BulkReader::noteRules(const std::vector<Rule>& rules) {
    const qint64 days = daysOf(m_selections.period);
    const Grain grain = rules.front().hitung == 0 || days == 1 ? Grain::Period : Grain::Day;
    if (grain == Grain::Day && days == 0)
        return;
    for (const Rule& rule : rules) {
        if (rule.use_if_sum == flagOn)
            noteSource(rule.use_kode_if, rule.id_kode_if, grain);
        if (rule.use_sum == flagOn && !rule.sharesFigure())
            noteSource(rule.use_kode_sum, rule.id_kode_sum, grain);
    }
}

void BulkReader::noteSource(int source, int id, Grain grain) {
    if (source == sourceComponent) {
        m_references.insert(id);
    } else if (source == sourceFigure && id == figureHadirSeratus) {
        m_fullAttendance.insert(grain);
    } else if (source == sourceFigure && findFigure(id)) {
        m_figures.insert({id, grain, Form::AsSet});
    }
}

void BulkReader::noteFullAttendance() {
    if (m_fullAttendance.empty())
        return;
    m_tables.hadir100 = readHadir100(m_app);
    step();
    const Hadir100& counts = m_tables.hadir100;
    for (const Grain grain : m_fullAttendance) {
        if (counts.hadir)
            m_figures.insert({figureHadir, grain, Form::Kehadiran});
        for (const auto& [counted, figure] : {std::pair(counts.izin, figureIzin), std::pair(counts.sakit, figureSakit),
                                              std::pair(counts.cuti, figureCuti), std::pair(counts.libur, figureLibur)})
            if (counted)
                m_figures.insert({figure, grain, Form::AsSet});
    }
}

template <typename T>
Reading<T> BulkReader::reading(const QString& sql, T (*parse)(db::Result)) {
    auto outcome = readingOf([&] { return parse(m_main.query(sql)); });
    step();
    return outcome;
}

void BulkReader::step() {
    ++m_reads;
    if (m_done)
        m_done(m_reads);
}

} // namespace run
