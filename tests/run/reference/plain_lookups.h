#pragma once

#include "run/reading/statements.h"
#include "toolkit/db/connection.h"

namespace run {

/// Looks everything up the plain way: one statement for each lookup, at the moment it is asked for. Slow; it is the
/// measure of what a run has to yield.
class PlainLookups : public Lookups {
public:
    PlainLookups(db::Connection& main, db::Connection& app, const SessionSelections& selections);

    [[nodiscard]] std::vector<Employee> members(int grp_id) override;
    [[nodiscard]] std::span<const Rule> rules(const RuleKey& key) override;
    [[nodiscard]] double money(const RuleKey& key) override;
    [[nodiscard]] QString referenceName(int com_id) override;
    [[nodiscard]] std::vector<LoanPayment> loanPayments(int emp_id_auto) override;
    [[nodiscard]] int selisih_hari(const QDate& a, const QDate& b) override;

protected:
    [[nodiscard]] double figure(int id_kode_report, int emp_id_auto, const Window& window) override;
    [[nodiscard]] double kehadiran(int emp_id_auto, const Window& window) override;
    [[nodiscard]] Hadir100 hadir100() override;

private:
    [[nodiscard]] double readFigure(int id_kode_report, const QString& column, int emp_id_auto, const Window& window);

    db::Connection& m_main;
    db::Connection& m_app;
    const SessionSelections m_selections;
    std::vector<Rule> m_rules;
};

} // namespace run
