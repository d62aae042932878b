#include "run/reading/memory_lookups.h"

#include "run/reading/figures.h"

#include <stdexcept>

namespace run {

MemoryLookups::MemoryLookups(const Window& period, LookupTables tables) :
    m_period(period), m_days(daysOf(period)), m_tables(std::move(tables)) {}

std::vector<Employee> MemoryLookups::members(int grp_id) {
    return m_tables.members.at(grp_id).value();
}

std::span<const Rule> MemoryLookups::rules(const RuleKey& key) {
    const RulesByComponent& rules = m_tables.rules.value();
    const auto found = rules.constFind({key.grp_id, key.com_id});
    if (found == rules.constEnd() || !m_tables.memberships.value().contains({key.grp_id, key.emp_id_auto}))
        return {};
    return *found;
}

double MemoryLookups::money(const RuleKey& key) {
    return m_tables.money.value().value({key.emp_id_auto, {key.grp_id, key.com_id}});
}

QString MemoryLookups::referenceName(int com_id) {
    return m_tables.referenceNames.value().value(com_id);
}

std::vector<LoanPayment> MemoryLookups::loanPayments(int emp_id_auto) {
    return m_tables.loans.value().value(emp_id_auto);
}

int MemoryLookups::selisih_hari(const QDate& a, const QDate& b) {
    return int(b.daysTo(a));
}

double MemoryLookups::figure(int id_kode_report, int emp_id_auto, const Window& window) {
    return findFigure(id_kode_report) ? value(id_kode_report, FigureRead::Form::AsSet, emp_id_auto, window) : 0;
}

double MemoryLookups::kehadiran(int emp_id_auto, const Window& window) {
    return value(figureHadir, FigureRead::Form::Kehadiran, emp_id_auto, window);
}

double MemoryLookups::value(int id_kode_report, FigureRead::Form form, int emp_id_auto, const Window& window) const {
    const bool wholePeriod =
        window.tanggal_awal == m_period.tanggal_awal && window.tanggal_akhir == m_period.tanggal_akhir;
    const auto grain = wholePeriod ? FigureRead::Grain::Period : FigureRead::Grain::Day;
    const auto found = m_tables.figures.find({id_kode_report, grain, form});
    if (found == m_tables.figures.end())
        throw std::logic_error("A figure was not read for this run");
    const FigureValues& values = found->second.value();
    const auto place = m_tables.places.constFind(emp_id_auto);
    if (place == m_tables.places.constEnd())
        return 0;
    if (wholePeriod)
        return values[std::size_t(*place)];
    return values[std::size_t(*place * m_days + m_period.tanggal_awal.daysTo(window.tanggal_awal))];
}

} // namespace run
