#pragma once

#include "run/rules/formula.h"
#include "run/rules/lookups.h"
#include "run/rules/run.h"

#include <vector>

namespace run {

/// The component under computation, named by its first rule row.
struct Component {
    int com_id = 0;
    QString com_kode;
    QString com_name;
};

/// Turns the rule rows of one employee's components into the rows of his line. The values that later rules can refer
/// to live as long as the evaluator. Faults of a lookup or of the arithmetic pass through, except inside a day, where
/// the line takes note of them.
class Evaluator final {
public:
    Evaluator(Lookups& lookups, const Window& period, Line& line);

    /// One rule row over the whole period, merged into the component's row.
    void hitung_aturan(const Rule& rule, const Component& component);
    /// A whole per-day component: every day by itself, then the sum as one row.
    void hitung_perhari(int grp_id, const Component& component);

private:
    struct PublishedValue {
        int ID_Komponen = 0;
        QString Nama_Komponen;
        Money Nilai_Komponen;
    };
    /// Only one text of all days is ever shown, so none is worded before.
    struct DayRow {
        QDate tanggal;
        Row row;
        ConditionText kondisi;
    };

    void hitung_aturan_hari(const Rule& rule, const QDate& tanggal);
    [[nodiscard]] Working evaluate(const Rule& rule, const Window& window);
    [[nodiscard]] Money moneyValue(const Rule& rule);
    [[nodiscard]] double sourceValue(int source, int id, const Window& window);
    [[nodiscard]] double nilai_referensi(int com_id);
    void publish(const Component& component, Money value);
    [[nodiscard]] Row* rowOf(int com_id);
    [[nodiscard]] Row newRow(const Component& component, int type) const;
    [[nodiscard]] Row sumOfDays(const Component& component, int type, Money& total) const;

    Lookups& m_lookups;
    const Window m_period;
    Line& m_line;
    const int m_emp_id_auto;
    std::vector<Row>& m_cds_sd;
    std::vector<PublishedValue> m_vir_tb3;
    std::vector<DayRow> m_vir_tb4;
};

} // namespace run
