#include "tests/run/random_company.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr int employeeCount = 5;
constexpr int groupCount = 3;
constexpr int componentCount = 6;

// Table, number of rows, then each column with the choices that its values are drawn from, parted by bars: a text of
// SQL, a number between two (divided by a third), one of the kinds below, "no" for the number of the row, or "=" and an
// earlier column. A group may be gone while its members and rules are still there, and so may a component.
constexpr auto mainTables = R"(
emp, 5, emp_id_auto no, pin 'A 7'|'7'|'B 07'|null|'12', nik 'N1'|null, first_name 'Ayu'|null, last_name 'Sari'|null, \
  cab_id_auto 1|1|1|2, emp_status 0|0|0|0|1
z_pay_grp, 3|3|3|2, grp_id no, grp_name 'G'
z_pay_grp_emp, 9, grp_id 1..3, emp_id_auto 1..5
z_pay_com, 6|6|5, com_id no, com_kode no, com_name 'Pokok'|'POKOK'|'Makan'|'Lembur'|'lembur'|''|null, \
  type 0|0|1|2|null, no_urut 0..19, param -1|-1|0|1
z_pay_grp_com, 30, grp_id 1..3, com_id 1..6, no_urut_ref no, use_if_sum -1|-1|0|1|null, \
  min_if 0|0|0|1|2.5|-2|0.1|null, use_kode_if source, id_kode_if asked, max_if 0|0|0|1|4|7.35|-3|1e9|null, \
  use_sum -1|-1|-1|-1|0|0|1|null, use_kode_sum source, id_kode_sum =id_kode_if|asked, \
  operator_sum '*'|'*'|'*'|'/'|'-'|'+'|'T'|'T'|''|'**'|null, \
  konstanta_sum 0|1|1.5|2|0.1|0.333333333333333333|1e-05|1e15|-2|null, \
  operator_sum2 '*'|'*'|'*'|'*'|'/'|'-'|'+'|'T'|''|null, nilai_rp money, hitung 0|0|1|2|null, jenis 0|1|2|3|null
z_pay_money, 12, grp_id 1..3, com_id 1..6, emp_id_auto 1..5, nilai_rp money
shift_result, 40, emp_id_auto 1..5, shift_date day, valid 0|0|0|1, late amount, early amount, total_ot amount, \
  duration amount, holiday flag, shift_ot flag, break1 amount, max_break amount, break2 amount, max_break2 amount
date_temp, 30, emp_id_auto 1..5, date_temp day, absent_id 1..9, duration amount, holiday flag
ex_absent, 15, emp_id_auto 1..5, tgl_awal day, absent_id 10..12, sum_result amount
free_ot_result_m, 10, emp_id_auto 1..5, free_date day, duration amount, duration_ot amount
free_ot, 0..3, begin_time -1|no, shift_ot -1|0|null
holiday, 0..4, holiday_date day
sum_report, 10, sum_id 1|2|3|4|13|14|15|16, sum_as 1|2|3|null
zx_jns_krd, 3, krd_id no, com_id 1|2|5|0|null|99
zx_kredit_m, 4, id_kredit no, krd_id 1..4
zx_bayar_kredit, 14, id_bayar no, tgl_bayar day|day|day|day|day|'2024-03-01', id_kredit 1..5, \
  debet 10000|2500|0|333.25|null, emp_id_auto 1..5)";

constexpr auto settingTable =
    "global_setting, 4, param_id 'Hadir100_hadir'|'Hadir100_izin'|'Hadir100_sakit'|'Hadir100_cuti'|'Hadir100_libur', "
    "param_value '-1'|'0'|'1'|'ya'|''|null";

const QHash<QString, QString> kinds{
    {u"source"_s, u"0|0|0|0|0|0|1|1|-1|2|null"_s},
    {u"asked"_s, u"1..6|figure|figure"_s},
    {u"figure"_s, u"0..29|4|7|17|50|null"_s},
    {u"money"_s, u"0|50000|75000|50000|20000|1000|1500.5|1501.5|0.00005|0.00015|-300|0.33333|1e15|9e14|2147483648.25|"
                 "20000|null"_s},
    {u"amount"_s, u"none|some|some|some"_s},
    {u"none"_s, u"0|0|-1|null"_s},
    {u"flag"_s, u"0|0|-1|null"_s},
    {u"day"_s, u"'2024-02-01'|'2024-02-02'|'2024-02-03'|'2024-02-04'|'2024-02-05'|'2024-02-06'|"
               "'2024-02-03 23:59:59'|'2024-02-04 07:30'"_s},
};

} // namespace

// Neighbours are of one kind: changing the columns takes longer than computing a company.
RandomCompany::RandomCompany(unsigned seed) :
    m_random(seed), m_dateType(seed / 100 % 2 == 0 ? u"date"_s : u"datetime"_s), m_kinds(kinds) {
    // Amounts in eighths, whose sums meet ties, or with two decimals; mixed, the order of a sum would matter.
    m_kinds[u"some"_s] = seed % 2 == 0 ? u"0..79/8"_s : u"0..1999/100"_s;
}

QString RandomCompany::draw(const QString& choices) {
    const QStringList all = choices.split(u'|');
    const QString& one = all[below(int(all.size()))];
    if (m_kinds.contains(one))
        return draw(m_kinds[one]);
    const qsizetype dots = one.indexOf(u".."_s);
    if (dots < 0)
        return one;
    const int first = one.first(dots).toInt();
    const int last = one.sliced(dots + 2).section(u'/', 0, 0).toInt();
    const int unit = one.contains(u'/') ? one.section(u'/', 1).toInt() : 1;
    return QString::number(double(first + below(last - first + 1)) / unit);
}

QString RandomCompany::rowsOf(const QString& table) {
    const QStringList parts = table.simplified().split(u", "_s);
    QStringList names, rows;
    for (const QString& column : parts.sliced(2))
        names << column.section(u' ', 0, 0);
    for (int row = 1, count = draw(parts[1]).toInt(); row <= count; ++row) {
        QStringList values;
        for (const QString& column : parts.sliced(2)) {
            const QString value = draw(column.section(u' ', 1));
            values << (value == u"no"           ? QString::number(row)
                       : value.startsWith(u'=') ? values[names.indexOf(value.sliced(1))]
                                                : value);
        }
        rows << u'(' + values.join(u',') + u')';
    }
    return rows.isEmpty()
               ? QString()
               : u"insert ignore into %1 (%2) values %3;\n"_s.arg(parts[0], names.join(u','), rows.join(u','));
}

QString RandomCompany::mainRows() {
    QString statements;
    for (const QString& table : QString::fromUtf8(mainTables).remove(u"\\\n"_s).split(u'\n', Qt::SkipEmptyParts))
        statements += rowsOf(table);
    return statements;
}

QString RandomCompany::settingRows() {
    return rowsOf(QString::fromUtf8(settingTable));
}

run::EmployeeChoice RandomCompany::ticks() {
    run::EmployeeChoice choice;
    for (int i = 0; i < employeeCount; ++i) {
        const int id = 1 + below(employeeCount + 1);
        choice.clb_emp_id.push_back({id, !once(3)});
        if (!once(4))
            choice.vir_emp.push_back({{.emp_id_auto = id, .pin = {}, .nik = {}, .nama = {}}, 1 + below(groupCount)});
    }
    return choice;
}

run::SessionSelections RandomCompany::selections() {
    run::SessionSelections chosen;
    const QDate first(2024, 2, 2);
    chosen.period = {first, first.addDays(once(12) ? -1 - below(2) : below(4))};
    for (int i = 0; i < 2; ++i)
        chosen.groups.push_back(1 + below(groupCount));
    for (int i = 0; i < componentCount; ++i)
        if (!once(6))
            chosen.components.push_back({.com_id = i + 1, .no_urut = below(20)});
    if (once(3))
        chosen.employees = ticks();
    chosen.loans = run::LoanTest(below(3));
    chosen.loanMonth = QDate(2024, once(3) ? 3 : 2, 28);
    chosen.session_cab_id = once(4) ? base::Branch::one(1) : base::Branch::all();
    return chosen;
}

QString RandomCompany::missingTable() {
    if (!once(12))
        return {};
    return draw(u"shift_result|date_temp|ex_absent|holiday|sum_report|free_ot|free_ot_result_m|z_pay_money|z_pay_com|"
                "z_pay_grp|z_pay_grp_com|z_pay_grp_emp|zx_kredit_m|emp"_s);
}
