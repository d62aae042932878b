#include "run/rules/evaluator.h"

#include "toolkit/fault/drop_fault.h"

#include <algorithm>

namespace run {

namespace {

void assign(Row& row, const Working& working) {
    row.jml_faktor = bulat_desimal(working.faktor);
    row.subtot_payroll = rupiahOf(working.hasil);
}

/// Joins a result to the row that earlier rules of the component have made; true where its text takes the place of
/// the row's. A fault leaves the row as it was.
[[nodiscard]] bool merge(Row& row, const Rule& rule, Working& working) {
    const bool adds = rule.jenis == 0 || rule.jenis == 1;
    if (adds) {
        row.jml_faktor = bulat_desimal(Extended(row.jml_faktor) + working.faktor);
        row.subtot_payroll =
            double((Extended(row.subtot_payroll) * unitsPerRupiah + working.hasil.units) / unitsPerRupiah);
        return false;
    }
    if (working.nilai_batas != 0 && working.nilai_asli != 0 && rule.use_sum == flagOn) {
        working.faktor = working.nilai_batas;
        applyFormula(rule, working.nilai_batas, working);
    }
    if (working.hasil == Money{})
        return false;
    assign(row, working);
    return !working.teks_kondisi.isEmpty();
}

} // namespace

Evaluator::Evaluator(Lookups& lookups, const Window& period, Line& line) :
    m_lookups(lookups), m_period(period), m_line(line), m_emp_id_auto(line.emp_id_auto), m_cds_sd(line.rows) {}

void Evaluator::hitung_aturan(const Rule& rule, const Component& component) {
    Working working = evaluate(rule, m_period);
    if (Row* row = rowOf(component.com_id)) {
        if (merge(*row, rule, working))
            row->kondisi = working.teks_kondisi.text();
    } else {
        Row fresh = newRow(component, rule.typex);
        assign(fresh, working);
        fresh.kondisi = working.teks_kondisi.text();
        m_cds_sd.push_back(std::move(fresh));
    }
    if (rule.param == flagOn)
        publish(component, working.hasil);
}

void Evaluator::hitung_perhari(int grp_id, const Component& component) {
    if (rowOf(component.com_id))
        return;
    m_vir_tb4.clear();
    int typex = 0;
    int param = 0;
    const int days = m_lookups.selisih_hari(m_period.tanggal_akhir.addDays(1), m_period.tanggal_awal);
    for (int day = 0; day < days; ++day) {
        const std::span<const Rule> rules = m_lookups.rules({grp_id, component.com_id, m_emp_id_auto});
        if (rules.empty())
            continue;
        typex = rules.front().typex;
        param = rules.front().param;
        fault::dropFault(
            "sisa aturan satu hari",
            [&] {
                for (const Rule& rule : rules)
                    hitung_aturan_hari(rule, m_period.tanggal_awal.addDays(day));
            },
            NoteFault{m_line});
    }
    Money total;
    m_cds_sd.push_back(sumOfDays(component, typex, total));
    if (param == flagOn)
        publish(component, total);
}

void Evaluator::hitung_aturan_hari(const Rule& rule, const QDate& tanggal) {
    Working working = evaluate(rule, {tanggal, tanggal});
    // The days come in order, so a row of this day can only be the last one.
    if (m_vir_tb4.empty() || m_vir_tb4.back().tanggal != tanggal) {
        DayRow fresh{tanggal, {}, working.teks_kondisi};
        assign(fresh.row, working);
        m_vir_tb4.push_back(std::move(fresh));
        return;
    }
    DayRow& day = m_vir_tb4.back();
    Row merged = day.row;
    const bool showsText = merge(merged, rule, working);
    // Unlike a row over the period, a day that is no amount of money keeps what it had.
    (void)moneyOfRupiah(merged.subtot_payroll);
    day.row = std::move(merged);
    if (showsText)
        day.kondisi = working.teks_kondisi;
}

Row Evaluator::sumOfDays(const Component& component, int type, Money& total) const {
    Row row = newRow(component, type);
    ConditionText text;
    for (const DayRow& day : m_vir_tb4) {
        total = moneyOfUnits(Extended(moneyOfRupiah(day.row.subtot_payroll).units) + total.units);
        row.jml_faktor = bulat_desimal(Extended(row.jml_faktor) + day.row.jml_faktor);
        if (!day.kondisi.isEmpty())
            text = day.kondisi;
    }
    row.subtot_payroll = rupiahOf(total);
    row.kondisi = text.text();
    return row;
}

Working Evaluator::evaluate(const Rule& rule, const Window& window) {
    Working working;
    working.nilai_uang = moneyValue(rule);
    if (rule.use_if_sum == flagOn) {
        working.nilai_kondisi = sourceValue(rule.use_kode_if, rule.id_kode_if, window);
        working.nilai_asli = working.nilai_kondisi;
        applyBand(rule, working);
    }
    if (!working.lolos)
        return working;
    if (rule.use_sum == 0) {
        working.hasil = working.nilai_uang;
        working.faktor = 1;
        working.teks_kondisi.addMoney(Operator::Multiply, working.nilai_uang);
    } else if (rule.use_sum == flagOn) {
        working.faktor =
            rule.sharesFigure() ? working.nilai_kondisi : sourceValue(rule.use_kode_sum, rule.id_kode_sum, window);
        applyFormula(rule, working.faktor, working);
    }
    return working;
}

Money Evaluator::moneyValue(const Rule& rule) {
    const Money fixed = moneyOfRupiah(rule.nilai_rp);
    const Money own = moneyOfRupiah(m_lookups.money({rule.grp_id, rule.com_id, m_emp_id_auto}));
    return own.units > 0 ? own : fixed;
}

double Evaluator::sourceValue(int source, int id, const Window& window) {
    if (source == sourceFigure)
        return m_lookups.faktor_laporan(id, m_emp_id_auto, window);
    if (source == sourceComponent)
        return nilai_referensi(id);
    return 0;
}

double Evaluator::nilai_referensi(int com_id) {
    const QString name = m_lookups.referenceName(com_id);
    if (name.isEmpty())
        return 0;
    // By name, not by number: of two components whose names differ only in case the first published one is found.
    for (const PublishedValue& value : m_vir_tb3)
        if (value.Nama_Komponen.compare(name, Qt::CaseInsensitive) == 0)
            return rupiahOf(value.Nilai_Komponen);
    return 0;
}

void Evaluator::publish(const Component& component, Money value) {
    const auto same = [&](const PublishedValue& known) { return known.ID_Komponen == component.com_id; };
    if (std::ranges::none_of(m_vir_tb3, same))
        m_vir_tb3.push_back({component.com_id, component.com_name, value});
}

Row* Evaluator::rowOf(int com_id) {
    const auto row = std::ranges::find(m_cds_sd, com_id, &Row::com_id);
    return row == m_cds_sd.end() ? nullptr : &*row;
}

Row Evaluator::newRow(const Component& component, int type) const {
    Row row;
    row.com_id = component.com_id;
    row.com_kode = component.com_kode;
    row.com_name = component.com_name;
    row.type = type;
    return row;
}

} // namespace run
