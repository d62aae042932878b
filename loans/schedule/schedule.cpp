#include "loans/schedule/schedule.h"

#include "toolkit/text/rounding.h"

#include <algorithm>
#include <cmath>

namespace loans {

namespace {

/// The nearest whole number in 32 bits that wrap round, however large it is.
qint32 whole(Extended value) {
    return wrapped32(qint64(std::fmod(std::rint(value), 0x1p32L)));
}

class Builder final {
public:
    explicit Builder(const LoanTerms& terms) :
        m_terms(terms), m_rate(terms.suku_bunga), m_months(terms.periode_bulan), m_base(roundedUp(terms.saldo_aw)) {
        m_schedule.angs_pokok = share(m_base);
    }

    /// The balance runs over all that is owed, and all instalments are alike: what rounding adds stays where it falls.
    Schedule flat() {
        const qint32 interest = roundedUp(m_base * Extended(rateOfTerm()) / 100);
        const qint32 bunga = share(interest);
        const qint32 debet = share(wrappedSum(m_base, interest));
        m_schedule.jumlah_piutang = roundedUp(Extended(debet) * m_months);
        qint32 balance = m_schedule.jumlah_piutang;
        for (int i = 0; i < m_months; ++i) {
            const qint32 after = wrappedDifference(balance, debet);
            add({dueDate(i), balance, debet, m_schedule.angs_pokok, bunga, after});
            balance = after;
        }
        return m_schedule;
    }

    /// The balance runs over the principal, and the last instalment takes what remains of it.
    Schedule sliding() {
        qint32 balance = m_base;
        qint32 principal = m_schedule.angs_pokok;
        for (int i = 0; i < m_months; ++i) {
            // Once smaller it stays so.
            principal = std::min(principal, balance);
            const qint32 interest = roundedUp(Extended(balance) * m_rate / 100);
            const qint32 debet = upToUnit(wrappedSum(interest, principal));
            const qint32 after = upToUnit(wrappedDifference(balance, principal));
            add({dueDate(i), balance, debet, principal, interest, after});
            balance = after;
        }
        m_schedule.jumlah_piutang = upToUnit(wrappedSum(m_base, m_schedule.tot_bunga));
        return m_schedule;
    }

private:
    [[nodiscard]] qint32 upToUnit(qint32 amount) const { return bulat_ke_atas(amount, m_terms.def_pembulatan); }

    [[nodiscard]] qint32 roundedUp(Extended value) const { return upToUnit(whole(value)); }

    [[nodiscard]] qint32 share(qint32 amount) const { return roundedUp(quotient(amount, m_months)); }

    [[nodiscard]] QDate dueDate(int i) const { return m_terms.angs_pertama.addMonths(i); }

    /// In percent. What is too large for two decimals has none.
    [[nodiscard]] double rateOfTerm() const {
        constexpr Extended tooLarge = 1e15L;
        const Extended rate = m_months * m_rate;
        return rate < tooLarge ? bulat_desimal(rate) : double(rate);
    }

    void add(const Instalment& row) {
        m_schedule.tot_debet = wrappedSum(m_schedule.tot_debet, row.debet);
        m_schedule.tot_angs_pokok = wrappedSum(m_schedule.tot_angs_pokok, row.angs_pokok);
        m_schedule.tot_bunga = wrappedSum(m_schedule.tot_bunga, row.bunga);
        m_schedule.rows.push_back(row);
    }

    const LoanTerms& m_terms;
    const Extended m_rate;
    const int m_months;
    const qint32 m_base;
    Schedule m_schedule;
};

} // namespace

Schedule scheduleOf(const LoanTerms& terms) {
    if (terms.periode_bulan == 0 || terms.def_pembulatan == 0)
        throw ArithmeticFault("Division by zero");
    Builder builder(terms);
    return terms.cara_hitung == CaraHitung::FlatRate ? builder.flat() : builder.sliding();
}

} // namespace loans
