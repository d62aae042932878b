#include "tests/run/reference/plain_lookups.h"

#include "run/reading/figure_statements.h"
#include "run/reading/statements.h"
#include "toolkit/db/parameters.h"

namespace run {

using namespace Qt::StringLiterals;

PlainLookups::PlainLookups(db::Connection& main, db::Connection& app, const SessionSelections& selections) :
    m_main(main), m_app(app), m_selections(selections) {}

std::vector<Employee> PlainLookups::members(int grp_id) {
    return readEmployees(m_main.query(membersStatement(grp_id, m_selections.session_cab_id)));
}

std::span<const Rule> PlainLookups::rules(const RuleKey& key) {
    m_rules.clear();
    db::Result rows = m_main.query(rulesStatement(key));
    while (rows.next())
        m_rules.push_back(readRule(rows));
    return m_rules;
}

double PlainLookups::money(const RuleKey& key) {
    db::Result row = m_main.query(moneyStatement(key));
    row.next();
    return row.real(u"nilai_rp"_s);
}

QString PlainLookups::referenceName(int com_id) {
    db::Result row = m_main.query(referenceStatement(com_id));
    row.next();
    return row.text(u"com_name"_s);
}

std::vector<LoanPayment> PlainLookups::loanPayments(int emp_id_auto) {
    std::vector<LoanPayment> payments;
    db::Result rows = m_main.query(loansStatement(m_selections, emp_id_auto));
    while (rows.next())
        payments.push_back(readLoanPayment(rows));
    return payments;
}

int PlainLookups::selisih_hari(const QDate& a, const QDate& b) {
    const auto text = [](const QDate& date) { return date.toString(u"yyyy-MM-dd"_s); };
    db::Result row = m_main.query(u"SELECT DATEDIFF('%1', '%2') as jml "_s.arg(text(a), text(b)));
    row.next();
    return int(row.integer(u"jml"_s));
}

double PlainLookups::figure(int id_kode_report, int emp_id_auto, const Window& window) {
    const Figure* figure = findFigure(id_kode_report);
    return figure ? readFigure(id_kode_report, figure->column, emp_id_auto, window) : 0;
}

double PlainLookups::kehadiran(int emp_id_auto, const Window& window) {
    return readFigure(figureHadir, u"kehadiran"_s, emp_id_auto, window);
}

Hadir100 PlainLookups::hadir100() {
    return readHadir100(m_app);
}

double PlainLookups::readFigure(int id_kode_report, const QString& column, int emp_id_auto, const Window& window) {
    const QString statement = statementForEmployee(*findFigure(id_kode_report));
    db::Result row =
        m_main.query(db::bindParameters(statement, {{u"emp_id_auto"_s, emp_id_auto},
                                                    {u"tanggal_awal"_s, window.tanggal_awal},
                                                    {u"tanggal_akhir"_s, window.tanggal_akhir.addDays(1)}}));
    row.next();
    return row.real(column);
}

} // namespace run
