#include "tests/run/random_company.h"

#include <QStringList>

namespace {

constexpr int employeeCount = 5;
constexpr int groupCount = 3;
constexpr int componentCount = 6;
constexpr int days = 6; ///< of attendance, around the run's period

} // namespace

RandomCompany::RandomCompany(unsigned seed) : m_random(seed), m_eighths(seed % 2 == 0) {}

int RandomCompany::below(int limit) {
    return int(m_random() % unsigned(limit));
}

bool RandomCompany::once(int in) {
    return below(in) == 0;
}

QString RandomCompany::pick(std::initializer_list<const char*> values) {
    return QString::fromLatin1(values.begin()[below(int(values.size()))]);
}

template <typename Row>
QString RandomCompany::insert(const char* into, int rows, Row row) {
    QStringList made;
    for (int i = 0; i < rows; ++i)
        made << u'(' + QStringList(row(i)).join(u',') + u')';
    return made.isEmpty()
               ? QString()
               : QStringLiteral("insert ignore into %1 values %2;\n").arg(QLatin1String(into), made.join(u','));
}

QString RandomCompany::day() {
    return QStringLiteral("'2024-02-%1'").arg(1 + below(days), 2, 10, QChar(u'0'));
}

QString RandomCompany::amount() {
    if (once(4))
        return pick({"0", "0", "-1", "null"});
    return m_eighths ? QString::number(below(80) / 8.0) : QString::number(below(2000) / 100.0);
}

QString RandomCompany::money() {
    return pick({"0", "50000", "75000", "50000", "20000", "1000", "1500.5", "1501.5", "0.00005", "0.00015", "-300",
                 "0.33333", "1e15", "9e14", "2147483648.25", "20000", "null"});
}

QString RandomCompany::source() {
    return pick({"0", "0", "0", "0", "0", "0", "1", "1", "-1", "2", "null"});
}

QString RandomCompany::figureOrComponent() {
    return once(3) ? QString::number(1 + below(componentCount))
                   : pick({"0",  "1",  "2",  "3",  "4",  "4",  "5",  "6",  "7",  "8",   "9",  "10",
                           "11", "12", "13", "14", "15", "16", "17", "17", "18", "19",  "20", "21",
                           "22", "23", "24", "25", "26", "27", "28", "29", "50", "null"});
}

QString RandomCompany::people() {
    QString rows = insert(
        "emp (emp_id_auto, pin, nik, first_name, last_name, cab_id_auto, emp_status)", employeeCount, [&](int i) {
            return QStringList{QString::number(i + 1),         pick({"'A 7'", "'7'", "'B 07'", "null", "'12'"}),
                               pick({"'N1'", "null"}),         pick({"'Ayu'", "null"}),
                               pick({"'Sari'", "null"}),       pick({"1", "1", "1", "2"}),
                               pick({"0", "0", "0", "0", "1"})};
        });
    // A group may be gone while its members and rules are still there.
    rows += insert("z_pay_grp (grp_id, grp_name)", groupCount - (once(4) ? 1 : 0), [](int i) {
        return QStringList{QString::number(i + 1), QStringLiteral("'G'")};
    });
    return rows + insert("z_pay_grp_emp (grp_id, emp_id_auto)", employeeCount + 2, [&](int i) {
               return QStringList{QString::number(1 + below(groupCount)), QString::number(1 + i % employeeCount)};
           });
}

QString RandomCompany::components() {
    return insert("z_pay_com (com_id, com_kode, com_name, type, no_urut, param)", componentCount - (once(3) ? 1 : 0),
                  [&](int i) {
                      return QStringList{QString::number(i + 1),
                                         QStringLiteral("'K%1'").arg(i),
                                         pick({"'Pokok'", "'POKOK'", "'Makan'", "'Lembur'", "'lembur'", "''", "null"}),
                                         pick({"0", "0", "1", "2", "null"}),
                                         QString::number(below(20)),
                                         pick({"-1", "-1", "0", "1"})};
                  });
}

QString RandomCompany::rules() {
    const char* const into = "z_pay_grp_com (grp_id, com_id, no_urut_ref, use_if_sum, min_if, use_kode_if, id_kode_if, "
                             "max_if, use_sum, use_kode_sum, id_kode_sum, operator_sum, konstanta_sum, operator_sum2, "
                             "nilai_rp, hitung, jenis)";
    QString rows = insert(into, 30, [&](int i) {
        const QString condition = figureOrComponent();
        return QStringList{QString::number(1 + below(groupCount)),
                           QString::number(1 + below(componentCount)),
                           QString::number(i),
                           pick({"-1", "-1", "0", "1", "null"}),
                           pick({"0", "0", "0", "1", "2.5", "-2", "0.1", "null"}),
                           source(),
                           condition,
                           pick({"0", "0", "0", "1", "4", "7.35", "-3", "1e9", "null"}),
                           pick({"-1", "-1", "-1", "-1", "0", "0", "1", "null"}),
                           source(),
                           once(2) ? condition : figureOrComponent(),
                           pick({"'*'", "'*'", "'*'", "'/'", "'-'", "'+'", "'T'", "'T'", "''", "'**'", "null"}),
                           pick({"0", "1", "1.5", "2", "0.1", "0.333333333333333333", "1e-05", "1e15", "-2", "null"}),
                           pick({"'*'", "'*'", "'*'", "'*'", "'/'", "'-'", "'+'", "'T'", "''", "null"}),
                           money(),
                           pick({"0", "0", "1", "2", "null"}),
                           pick({"0", "1", "2", "3", "null"})};
    });
    return rows + insert("z_pay_money (grp_id, com_id, emp_id_auto, nilai_rp)", 12, [&](int) {
               return QStringList{QString::number(1 + below(groupCount)), QString::number(1 + below(componentCount)),
                                  QString::number(1 + below(employeeCount)), money()};
           });
}

QString RandomCompany::attendance() {
    const auto employee = [&] { return QString::number(1 + below(employeeCount)); };
    const auto holiday = [&] { return pick({"0", "0", "-1", "null"}); };
    QString rows = insert("shift_result (emp_id_auto, shift_date, valid, late, early, total_ot, duration, holiday, "
                          "shift_ot, break1, max_break, break2, max_break2)",
                          40, [&](int) {
                              return QStringList{employee(), day(),     pick({"0", "0", "0", "1"}),
                                                 amount(),   amount(),  amount(),
                                                 amount(),   holiday(), holiday(),
                                                 amount(),   amount(),  amount(),
                                                 amount()};
                          });
    rows += insert("date_temp (emp_id_auto, date_temp, absent_id, duration, holiday)", 30, [&](int) {
        return QStringList{employee(), day(), QString::number(1 + below(9)), amount(), holiday()};
    });
    rows += insert("ex_absent (emp_id_auto, tgl_awal, absent_id, sum_result)", 15, [&](int) {
        return QStringList{employee(), day(), QString::number(10 + below(3)), amount()};
    });
    rows += insert("free_ot_result_m (emp_id_auto, free_date, duration, duration_ot)", 10, [&](int) {
        return QStringList{employee(), day(), amount(), amount()};
    });
    rows += insert("free_ot (begin_time, shift_ot)", below(4), [&](int i) {
        return QStringList{QString::number(i - 1), pick({"-1", "0", "null"})};
    });
    rows += insert("holiday (holiday_date)", below(5), [&](int) { return QStringList{day()}; });
    return rows + insert("sum_report (sum_id, sum_as)", 10, [&](int) {
               return QStringList{pick({"1", "2", "3", "4", "13", "14", "15", "16"}), pick({"1", "2", "3", "null"})};
           });
}

QString RandomCompany::loans() {
    QString rows = insert("zx_jns_krd (krd_id, com_id)", 3, [&](int i) {
        return QStringList{QString::number(i + 1), pick({"1", "2", "5", "0", "null", "99"})};
    });
    rows += insert("zx_kredit_m (id_kredit, krd_id)", 4, [&](int i) {
        return QStringList{QString::number(i + 1), QString::number(1 + below(4))};
    });
    return rows + insert("zx_bayar_kredit (id_bayar, tgl_bayar, id_kredit, debet, emp_id_auto)", 14, [&](int i) {
               return QStringList{QString::number(i + 1), once(6) ? QStringLiteral("'2024-03-01'") : day(),
                                  QString::number(1 + below(5)), pick({"10000", "2500", "0", "333.25", "null"}),
                                  QString::number(1 + below(employeeCount))};
           });
}

QString RandomCompany::mainRows() {
    return people() + components() + rules() + attendance() + loans();
}

QString RandomCompany::settingRows() {
    return insert("global_setting (param_id, param_value)", 4, [&](int) {
        return QStringList{
            pick({"'Hadir100_hadir'", "'Hadir100_izin'", "'Hadir100_sakit'", "'Hadir100_cuti'", "'Hadir100_libur'"}),
            pick({"'-1'", "'0'", "'1'", "'ya'", "''", "null"})};
    });
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

run::Selections RandomCompany::selections() {
    run::Selections chosen;
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
    chosen.session_cab_id = pick({"0", "0", "0", "1"});
    return chosen;
}

double RandomCompany::round_value() {
    return pick({"0", "0", "100", "1000", "2.5", "-5"}).toDouble();
}

QString RandomCompany::missingTable() {
    if (!once(12))
        return {};
    return pick({"shift_result", "date_temp", "ex_absent", "holiday", "sum_report", "free_ot", "free_ot_result_m",
                 "z_pay_money", "z_pay_com", "z_pay_grp", "z_pay_grp_com", "z_pay_grp_emp", "zx_kredit_m", "emp"});
}
