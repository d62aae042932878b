#pragma once

#include "run/rules/rule.h"

#include <QDate>
#include <QString>

#include <span>
#include <vector>

namespace run {

/// The days of an attendance figure, both inclusive.
struct Window {
    QDate tanggal_awal;
    QDate tanggal_akhir;
};

/// Both ends counted; 0 where the last day lies before the first.
[[nodiscard]] qint64 daysOf(const Window& window);

struct Employee {
    int emp_id_auto = 0;
    QString pin;
    QString nik;
    QString nama;
};

/// What an employee paid on one loan, under the component of the loan's type (0: the type has none).
struct LoanPayment {
    int com_id = 0;
    QString com_kode;
    QString com_name;
    double jml_angsuran = 0; ///< rupiah
};

/// Which days count towards full attendance; the values are those of a missing setting.
struct Hadir100 {
    bool hadir = true;
    bool izin = false;
    bool sakit = false;
    bool cuti = false;
    bool libur = true;
};

/// All that a run looks up while it computes. A lookup that fails throws, and the run drops what hangs on it.
class Lookups {
public:
    virtual ~Lookups() = default;

    /// Active employees of a group in the order of the run.
    [[nodiscard]] virtual std::vector<Employee> members(int grp_id) = 0;
    /// Rule rows in order; none for an employee outside the group. Valid until the next call.
    [[nodiscard]] virtual std::span<const Rule> rules(const RuleKey& key) = 0;
    /// The employee's own money value in rupiah, 0 where there is none.
    [[nodiscard]] virtual double money(const RuleKey& key) = 0;
    /// Name of a component that rules may refer to, else empty.
    [[nodiscard]] virtual QString referenceName(int com_id) = 0;
    /// Payments in the run's period or month by loan and component.
    [[nodiscard]] virtual std::vector<LoanPayment> loanPayments(int emp_id_auto) = 0;
    /// a minus b in days.
    [[nodiscard]] virtual int selisih_hari(const QDate& a, const QDate& b) = 0;

    /// An attendance figure by its number; a number without a figure gives 0.
    [[nodiscard]] double faktor_laporan(int id_kode_report, int emp_id_auto, const Window& window);

protected:
    /// A figure that is counted from attendance; 0 for a number without one.
    [[nodiscard]] virtual double figure(int id_kode_report, int emp_id_auto, const Window& window) = 0;
    /// Days present, whichever way the figure itself is counted.
    [[nodiscard]] virtual double kehadiran(int emp_id_auto, const Window& window) = 0;
    [[nodiscard]] virtual Hadir100 hadir100() = 0;

private:
    [[nodiscard]] double hadir_seratus(int emp_id_auto, const Window& window);
};

} // namespace run
