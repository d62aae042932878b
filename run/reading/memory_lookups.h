#pragma once

#include "run/rules/lookups.h"
#include "toolkit/db/fault.h"

#include <QHash>
#include <QSet>

#include <exception>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

namespace run {

/// What a read gave: its value, or the fault that every lookup of it is to raise.
template <typename T>
class Reading final {
public:
    Reading() = default;
    explicit Reading(T value) : m_value(std::move(value)) {}
    explicit Reading(std::exception_ptr fault) : m_fault(std::move(fault)) {}

    [[nodiscard]] const T& value() const {
        if (m_fault)
            std::rethrow_exception(m_fault);
        return m_value;
    }
    [[nodiscard]] std::exception_ptr fault() const { return m_fault; }

private:
    T m_value{};
    std::exception_ptr m_fault;
};

/// Runs the read and keeps what comes of it, so that a failure is met where the value is needed. A lost connection and
/// a cancelled statement are no matter of one value; they are thrown at once.
template <typename Read>
[[nodiscard]] auto readingOf(Read&& read) -> Reading<decltype(read())> {
    using Outcome = Reading<decltype(read())>;
    try {
        return Outcome(read());
    } catch (const db::Fault& fault) {
        if (fault.stopsWork())
            throw;
        return Outcome(std::current_exception());
    } catch (const std::exception&) {
        return Outcome(std::current_exception());
    }
}

/// One value of a figure: over the run's period or for each of its days, as the settings count it or in days present.
struct FigureRead {
    enum class Grain { Period, Day };
    enum class Form { AsSet, Kehadiran };

    int id_kode_report = 0;
    Grain grain = Grain::Period;
    Form form = Form::AsSet;

    friend bool operator<(const FigureRead& a, const FigureRead& b) {
        return std::tie(a.id_kode_report, a.grain, a.form) < std::tie(b.id_kode_report, b.grain, b.form);
    }
};

/// Values by employee, in the order of LookupTables::places, and within an employee by day.
using FigureValues = std::vector<double>;

using RulesByComponent = QHash<std::pair<int, int>, std::vector<Rule>>;     ///< by grp_id and com_id
using MoneyByEmployee = QHash<std::pair<int, std::pair<int, int>>, double>; ///< by emp_id_auto and (grp_id, com_id)
using LoansByEmployee = QHash<int, std::vector<LoanPayment>>;
using Memberships = QSet<std::pair<int, int>>; ///< grp_id and emp_id_auto

/// All that a run of one period looks up, read beforehand and held in memory.
struct LookupTables {
    std::map<int, Reading<std::vector<Employee>>> members; ///< by grp_id
    QHash<int, int> places;                                ///< emp_id_auto to the place in FigureValues
    Reading<RulesByComponent> rules;
    Reading<Memberships> memberships; ///< who has the rules of a group
    Reading<MoneyByEmployee> money;
    Reading<QHash<int, QString>> referenceNames;
    Reading<LoansByEmployee> loans;
    Hadir100 hadir100;
    std::map<FigureRead, Reading<FigureValues>> figures;
};

/// Looks everything up in tables. Each window asked for is the period itself or one of its days.
class MemoryLookups final : public Lookups {
public:
    MemoryLookups(const Window& period, LookupTables tables);

    [[nodiscard]] std::vector<Employee> members(int grp_id) override;
    [[nodiscard]] std::span<const Rule> rules(const RuleKey& key) override;
    [[nodiscard]] double money(const RuleKey& key) override;
    [[nodiscard]] QString referenceName(int com_id) override;
    [[nodiscard]] std::vector<LoanPayment> loanPayments(int emp_id_auto) override;
    [[nodiscard]] int selisih_hari(const QDate& a, const QDate& b) override;

protected:
    [[nodiscard]] double figure(int id_kode_report, int emp_id_auto, const Window& window) override;
    [[nodiscard]] double kehadiran(int emp_id_auto, const Window& window) override;
    [[nodiscard]] Hadir100 hadir100() override { return m_tables.hadir100; }

private:
    [[nodiscard]] double value(int id_kode_report, FigureRead::Form form, int emp_id_auto, const Window& window) const;

    const Window m_period;
    const qint64 m_days;
    const LookupTables m_tables;
};

} // namespace run
