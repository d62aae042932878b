#pragma once

#include <QDate>

#include <vector>

namespace loans {

/// How interest is taken: once on the whole balance, or each month on what is open.
enum class CaraHitung { FlatRate = 0, SlidingRate = 1 };

/// What a schedule is built from. Amounts are rupiah as typed.
struct LoanTerms {
    CaraHitung cara_hitung = CaraHitung::FlatRate;
    double saldo_aw = 0;
    double suku_bunga = 0;  ///< percent a month
    int periode_bulan = 1;  ///< number of instalments, not 0
    int def_pembulatan = 1; ///< every amount of the schedule is a multiple of it, not 0
    QDate angs_pertama = {};
};

/// One month; whole rupiah.
struct Instalment {
    QDate tgl_jt;
    qint32 saldo_aw = 0;
    qint32 debet = 0;
    qint32 angs_pokok = 0;
    qint32 bunga = 0;
    qint32 saldo_akh = 0;

    friend bool operator==(const Instalment&, const Instalment&) = default;
};

struct Schedule {
    std::vector<Instalment> rows;
    qint32 angs_pokok = 0;     ///< the regular share of the principal
    qint32 jumlah_piutang = 0; ///< all that is owed over the term
    qint32 tot_debet = 0;
    qint32 tot_angs_pokok = 0;
    qint32 tot_bunga = 0;
};

/// Due dates count from the first one, on the last day of a month that has no such day. Amounts have 32 bits and wrap
/// round; products and quotients are rounded once, ties to the even neighbour, then up to the unit. Throws
/// ArithmeticFault on a term or a unit of 0.
[[nodiscard]] Schedule scheduleOf(const LoanTerms& terms);

} // namespace loans
