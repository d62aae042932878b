#include "bench/run/month_rules.h"

namespace {

using namespace Qt::StringLiterals;

/// com_id, use_if_sum, min_if, use_kode_if, id_kode_if, max_if, use_sum, use_kode_sum, id_kode_sum, operator_sum,
/// konstanta_sum, operator_sum2, nilai_rp, hitung, jenis
constexpr const char* rules[] = {
    "1, 0, 0, -1, 0, 0, 0, -1, 0, '', 0, '', 4500000, 0, 0",     // basic pay
    "2, 0, 0, -1, 0, 0, 0, -1, 0, '', 0, '', 250000, 0, 0",      // position allowance
    "3, 0, 0, -1, 0, 0, -1, 0, 4, 'T', 0, '*', 20000, 0, 0",     // meals for days present
    "4, -1, 0, 0, 4, 22, -1, 0, 4, 'T', 0, '*', 15000, 0, 0",    // transport, a higher rate
    "4, -1, 22, 0, 4, 0, -1, 0, 4, 'T', 0, '*', 17500, 0, 2",    // for all days above 22
    "5, -1, 1, 0, 21, 0, -1, 0, 18, '*', 1.5, '*', 10000, 0, 0", // days off worked
    "9, -1, 1, 0, 17, 1, 0, -1, 0, '', 0, '', 200000, 0, 0",     // full attendance
    "12, -1, 0, 0, 5, 0, -1, 0, 5, 'T', 0, '*', 150000, 0, 0",   // absence
    "13, 0, 0, -1, 0, 0, -1, 1, 1, '*', 0.01, '', 0, 0, 0",      // a share of the basic pay
    "6, -1, 0, 0, 23, 1, -1, 0, 23, '*', 1.5, '*', 25000, 1, 1", // overtime in tiers
    "6, -1, 1, 0, 23, 0, -1, 0, 23, '*', 2, '*', 25000, 1, 1",
    "7, -1, 0, 0, 24, 8, -1, 0, 24, '*', 2, '*', 25000, 1, 1", // on days off
    "7, -1, 8, 0, 24, 9, -1, 0, 24, '*', 3, '*', 25000, 1, 1",
    "7, -1, 9, 0, 24, 0, -1, 0, 24, '*', 4, '*', 25000, 1, 1",
    "8, 0, 0, -1, 0, 0, -1, 0, 28, 'T', 0, '*', 2500, 1, 0",     // overtime by the shift
    "11, -1, 0.25, 0, 1, 1, -1, 0, 1, 'T', 0, '*', 10000, 1, 1", // lateness in tiers
    "11, -1, 1, 0, 1, 0, -1, 0, 1, 'T', 0, '*', 20000, 1, 1",
};

std::vector<int> numbers(db::Connection& main, const QString& sql) {
    std::vector<int> found;
    db::Result rows = main.query(sql);
    while (rows.next())
        found.push_back(int(rows.integer(0)));
    return found;
}

} // namespace

void installMonthRules(db::Connection& main) {
    main.execute(u"delete from z_pay_grp_com"_s);
    int place = 0;
    for (const char* rule : rules)
        main.execute(u"insert into z_pay_grp_com (grp_id, no_urut_ref, com_id, use_if_sum, min_if, use_kode_if, "
                     "id_kode_if, max_if, use_sum, use_kode_sum, id_kode_sum, operator_sum, konstanta_sum, "
                     "operator_sum2, nilai_rp, hitung, jenis) select grp_id, %1, %2 from z_pay_grp"_s.arg(++place)
                         .arg(QLatin1String(rule)));
}

run::SessionSelections monthOf(db::Connection& main, const run::Window& month) {
    run::SessionSelections selections;
    selections.session_cab_id = base::Branch::all();
    selections.period = month;
    selections.groups = numbers(main, u"select grp_id from z_pay_grp order by grp_name"_s);
    for (const int com_id : numbers(main, u"select distinct com_id from z_pay_grp_com"_s))
        selections.components.push_back({.com_id = com_id, .no_urut = com_id});
    selections.loans = run::LoanTest::Period;
    return selections;
}
