#include "tools/company/loans.h"

#include "tools/company/bulk_insert.h"
#include "tools/company/dice.h"
#include "tools/company/salary.h"

#include <QDateTime>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace company {

namespace {

struct LoanType {
    QString code;
    QString name;
    Component component;
    int lowest; ///< millions of rupiah
    int highest;
};

const QList<LoanType>& loanTypes() {
    static const QList<LoanType> list = {{u"KOP"_s, u"Pinjaman Koperasi"_s, PinjamanKoperasi, 2, 10},
                                         {u"KEN"_s, u"Kredit Kendaraan"_s, PinjamanKendaraan, 8, 24},
                                         {u"DAR"_s, u"Pinjaman Darurat"_s, PinjamanKoperasi, 1, 3}};
    return list;
}

loans::LoanTerms termsFor(const LoanType& type, QDate granted, Dice& dice) {
    static constexpr double rates[] = {0, 0.5, 1, 1.25, 1.5};
    static constexpr int terms[] = {6, 10, 12, 18, 24};
    static constexpr int units[] = {100, 500, 1000};
    return {.cara_hitung = dice.chance(600) ? loans::CaraHitung::FlatRate : loans::CaraHitung::SlidingRate,
            .saldo_aw = dice.between(type.lowest * 4, type.highest * 4) * 250000.0,
            .suku_bunga = dice.pick(rates),
            .periode_bulan = dice.pick(terms),
            .def_pembulatan = dice.pick(units),
            .angs_pertama = granted.addMonths(1)};
}

// Days. Every sixth loan is too young for an instalment, every fifth old enough to be paid off.
int ageOf(int id, Dice& dice) {
    if (id % 6 == 0)
        return dice.below(25);
    return id % 5 == 0 ? dice.between(220, 400) : dice.below(400);
}

int paidBy(QDate day, const Loan& loan) {
    const auto due =
        std::ranges::count_if(loan.schedule.rows, [day](const loans::Instalment& one) { return one.tgl_jt <= day; });
    return loan.id % 7 == 0 ? std::max(0, int(due) - 1) : int(due);
}

QDateTime recorded(QDate day) {
    return QDateTime(day, QTime(14, 15), Qt::UTC);
}

void writeTypes(db::Connection& main, QDate day) {
    BulkInsert insert(main, "zx_jns_krd (krd_id, krd_kode, krd_name, com_id, lastupdate_date, lastupdate_user)");
    for (int i = 0; i < loanTypes().size(); ++i)
        insert.row(i + 1, loanTypes()[i].code, loanTypes()[i].name, int(loanTypes()[i].component), recorded(day),
                   u"admin"_s);
    insert.finish();
}

void writeHeaders(db::Connection& main, const std::vector<Loan>& loans) {
    BulkInsert insert(main,
                      "zx_kredit_m (id_kredit, no_kredit, tgl_kredit, emp_id_auto, krd_id, cara_hitung, tot_kredit, "
                      "saldo_aw, suku_bunga, periode_bulan, angs_pokok, angs_pertama, tot_debet, tot_angs_pokok, "
                      "tot_bunga, def_pembulatan, jumlah_piutang, approv_by, keterangan, status, status_lunas, "
                      "lastupdate_date, lastupdate_user)");
    for (const Loan& loan : loans) {
        const loans::LoanTerms& terms = loan.terms;
        const loans::Schedule& schedule = loan.schedule;
        const QString number = u"PJ/%1/%2"_s.arg(loan.granted.toString(u"yyyyMM")).arg(loan.id, 4, 10, '0'_L1);
        insert.row(loan.id, number, loan.granted, loan.employee, loan.type, int(terms.cara_hitung), terms.saldo_aw,
                   terms.saldo_aw, terms.suku_bunga, terms.periode_bulan, schedule.angs_pokok, terms.angs_pertama,
                   schedule.tot_debet, schedule.tot_angs_pokok, schedule.tot_bunga, terms.def_pembulatan,
                   schedule.jumlah_piutang, u"Manajer SDM"_s, u""_s, Flag{loan.paid > 0}, Flag{loan.isPaidOff()},
                   recorded(loan.granted), u"payroll"_s);
    }
    insert.finish();
}

void writeSchedules(db::Connection& main, const std::vector<Loan>& loans) {
    BulkInsert insert(main, "zx_kredit_d (id_kredit, no_urut, tgl_jt, saldo_aw, debet, angs_pokok, bunga, saldo_akh, "
                            "proses_bayar, keterangan)");
    for (const Loan& loan : loans) {
        int place = 0;
        for (const loans::Instalment& one : loan.schedule.rows) {
            ++place;
            insert.row(loan.id, place, one.tgl_jt, one.saldo_aw, one.debet, one.angs_pokok, one.bunga, one.saldo_akh,
                       Flag{place <= loan.paid}, u""_s);
        }
    }
    insert.finish();
}

struct Payment {
    const Loan* loan;
    int place;

    [[nodiscard]] const loans::Instalment& instalment() const { return loan->schedule.rows[size_t(place - 1)]; }
};

// In the order in which the days brought them.
std::vector<Payment> paymentsOf(const std::vector<Loan>& loans) {
    std::vector<Payment> payments;
    for (const Loan& loan : loans)
        for (int place = 1; place <= loan.paid; ++place)
            payments.push_back({&loan, place});
    std::ranges::stable_sort(payments, {}, [](const Payment& one) { return one.instalment().tgl_jt; });
    return payments;
}

void writePayments(db::Connection& main, const std::vector<Loan>& loans) {
    BulkInsert insert(main,
                      "zx_bayar_kredit (id_bayar, tgl_bayar, id_kredit, no_urut, tgl_jt, debet, angs_pokok, bunga, "
                      "emp_id_auto, keterangan, status, lastupdate_date, lastupdate_user)");
    int id = 0;
    for (const Payment& payment : paymentsOf(loans)) {
        const loans::Instalment& one = payment.instalment();
        insert.row(++id, one.tgl_jt, payment.loan->id, payment.place, one.tgl_jt, one.debet, one.angs_pokok, one.bunga,
                   payment.loan->employee, u""_s, Flag{payment.loan->isPaidOff()}, recorded(one.tgl_jt), u"payroll"_s);
    }
    insert.finish();
}

} // namespace

std::vector<Loan> makeLoans(const std::vector<Employee>& employees, const Options& options) {
    const Period period = periodOf(options);
    std::vector<Loan> loans;
    for (const Employee& employee : employees) {
        if (!employee.isActive() || employee.id % 4 != 0)
            continue;
        Dice dice{options.seed, quint64(employee.id), 11};
        Loan& loan = loans.emplace_back();
        loan.id = int(loans.size());
        loan.employee = employee.id;
        loan.type = dice.between(1, int(loanTypes().size()));
        loan.granted = std::max(employee.begin, period.last.addDays(-ageOf(loan.id, dice)));
        loan.terms = termsFor(loanTypes()[loan.type - 1], loan.granted, dice);
        if (loan.id % 5 == 0)
            loan.terms.periode_bulan = 6;
        loan.schedule = loans::scheduleOf(loan.terms);
        loan.paid = paidBy(period.last, loan);
    }
    return loans;
}

void writeLoans(db::Connection& main, const std::vector<Loan>& loans) {
    if (!loans.empty())
        writeTypes(main, std::ranges::min(loans, {}, &Loan::granted).granted);
    else
        writeTypes(main, QDate(2020, 1, 2));
    writeHeaders(main, loans);
    writeSchedules(main, loans);
    writePayments(main, loans);
}

} // namespace company
