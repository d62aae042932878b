// Schedules as data in, data out. The expected rows were worked out with exact fractions by another program.

#include "loans/schedule/schedule.h"
#include "tests/support/test_database.h"
#include "toolkit/text/rounding.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// "flat 10000000 1.5 12 1000 2026-01-15": rate, months, unit and first due date behind the balance.
loans::LoanTerms termsOf(const QStringList& words) {
    return {.cara_hitung = words[0] == u"flat" ? loans::CaraHitung::FlatRate : loans::CaraHitung::SlidingRate,
            .saldo_aw = words[1].toDouble(),
            .suku_bunga = words[2].toDouble(),
            .periode_bulan = words[3].toInt(),
            .def_pembulatan = words[4].toInt(),
            .angs_pertama = QDate::fromString(words[5], Qt::ISODate)};
}

QString textOf(std::initializer_list<qint32> amounts) {
    QStringList texts;
    for (const qint32 amount : amounts)
        texts << QString::number(amount);
    return texts.join(u' ');
}

QString textOf(const loans::Instalment& row) {
    return row.tgl_jt.toString(Qt::ISODate) + u' ' +
           textOf({row.saldo_aw, row.debet, row.angs_pokok, row.bunga, row.saldo_akh});
}

} // namespace

TEST(Schedule, TurnsTermsIntoRows) {
    // Terms | share of the principal, receivable, sums of payment, principal and interest | first row | last row
    const QString cases = uR"(
flat 10000000 1.5 12 1000 2026-01-15 | 834000 11808000 11808000 10008000 1800000 | 2026-01-15 11808000 984000 834000 150000 10824000 | 2026-12-15 984000 984000 834000 150000 0
sliding 10000000 1.5 12 1000 2026-01-15 | 834000 10978000 10978000 10000000 978000 | 2026-01-15 10000000 984000 834000 150000 9166000 | 2026-12-15 826000 839000 826000 13000 0
flat 1000000 1.5 3 1000 2026-01-31 | 334000 1047000 1047000 1002000 45000 | 2026-01-31 1047000 349000 334000 15000 698000 | 2026-03-31 349000 349000 334000 15000 0
sliding 1000000 1.5 3 1000 2026-01-31 | 334000 1030000 1030000 1000000 30000 | 2026-01-31 1000000 349000 334000 15000 666000 | 2026-03-31 332000 337000 332000 5000 0
flat 1000000 0 7 1000 2028-02-29 | 143000 1001000 1001000 1001000 0 | 2028-02-29 1001000 143000 143000 0 858000 | 2028-08-29 143000 143000 143000 0 0
sliding 1000000 0 7 1000 2028-02-29 | 143000 1000000 1000000 1000000 0 | 2028-02-29 1000000 143000 143000 0 857000 | 2028-08-29 142000 142000 142000 0 0
flat 999950 2 1 100 2026-12-31 | 1000000 1020000 1020000 1000000 20000 | 2026-12-31 1020000 1020000 1000000 20000 0 | 2026-12-31 1020000 1020000 1000000 20000 0
sliding 999950 2 1 100 2026-12-31 | 1000000 1020000 1020000 1000000 20000 | 2026-12-31 1000000 1020000 1000000 20000 0 | 2026-12-31 1000000 1020000 1000000 20000 0
sliding 1001 0 10 1000 2026-01-01 | 1000 2000 2000 2000 0 | 2026-01-01 2000 1000 1000 0 1000 | 2026-10-01 0 0 0 0 0
flat 1001 0 10 1000 2026-01-01 | 1000 10000 10000 10000 0 | 2026-01-01 10000 1000 1000 0 9000 | 2026-10-01 1000 1000 1000 0 0
flat 10000000 0.333333 360 1 2026-08-31 | 27778 21999960 21999960 10000080 11999880 | 2026-08-31 21999960 61111 27778 33333 21938849 | 2056-07-31 61111 61111 27778 33333 0
sliding 10000000 0.333333 360 1 2026-08-31 | 27778 16016613 16016613 10000000 6016613 | 2026-08-31 10000000 61111 27778 33333 9972222 | 2056-07-31 27698 27790 27698 92 0
flat 100 0.5 1 1 2026-01-01 | 100 100 100 100 0 | 2026-01-01 100 100 100 0 0 | 2026-01-01 100 100 100 0 0
sliding 50 1 3 1 2026-01-01 | 17 50 50 50 0 | 2026-01-01 50 17 17 0 33 | 2026-03-01 16 16 16 0 0
sliding 150 1 3 1 2026-01-01 | 50 153 153 150 3 | 2026-01-01 150 52 50 2 100 | 2026-03-01 50 50 50 0 0
flat 2147483647 1 2 1 2026-01-01 | 1073741824 -2104533976 -2104533976 -2147483648 42949672 | 2026-01-01 -2104533976 -1052266988 1073741824 21474836 -1052266988 | 2026-02-01 -1052266988 -1052266988 1073741824 21474836 0
sliding 2147483647 1 2 1 2026-01-01 | 1073741824 -2115271395 -2115271395 2147483647 32212254 | 2026-01-01 2147483647 1095216660 1073741824 21474836 1073741823 | 2026-02-01 1073741823 1084479241 1073741823 10737418 0
flat 2147483648 1 2 1 2026-01-01 | -1073741824 2104533976 2104533976 -2147483648 -42949672 | 2026-01-01 2104533976 1052266988 -1073741824 -21474836 1052266988 | 2026-02-01 1052266988 1052266988 -1073741824 -21474836 0
flat 4294967396 1 2 1 2026-01-01 | 50 102 102 100 2 | 2026-01-01 102 51 50 1 51 | 2026-02-01 51 51 50 1 0
sliding 2147483647 0.1 2 100000 2026-01-01 | -1073733648 2145400000 -2067296 32704 -2147467 | 2026-01-01 -2147467296 2145400000 -2147467296 -2147467 0 | 2026-02-01 0 -2147467296 -2147467296 0 -2147467296
flat 5 1e+20 2 1 2026-01-01 | 2 -1981284348 -1981284348 4 -1981284352 | 2026-01-01 -1981284348 -990642174 2 -990642176 -990642174 | 2026-02-01 -990642174 -990642174 2 -990642176 0
flat 1000000.5 0.005 1 1 2026-01-01 | 1000000 1000100 1000100 1000000 100 | 2026-01-01 1000100 1000100 1000000 100 0 | 2026-01-01 1000100 1000100 1000000 100 0
flat 1000000000 12.345 360 100000 2026-01-01 | 2800000 -1802567160 -1802567160 1008000000 1512000000 | 2026-01-01 -1802567160 -5007131 2800000 4200000 -1797560029 | 2055-12-01 -5007131 -5007131 2800000 4200000 0
sliding 1000000000 12.345 360 100000 2026-01-01 | 2800000 1649400000 1649363520 1000000000 649363520 | 2026-01-01 1000000000 126300000 2800000 123500000 997200000 | 2055-12-01 0 0 0 0 0
)"_s;
    for (const QString& line : cases.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList cells = line.split(u" | "_s);
        const loans::LoanTerms terms = termsOf(cells[0].split(u' '));
        const loans::Schedule made = loans::scheduleOf(terms);
        ASSERT_EQ(made.rows.size(), std::size_t(terms.periode_bulan)) << line.toStdString();
        const QString sums =
            textOf({made.angs_pokok, made.jumlah_piutang, made.tot_debet, made.tot_angs_pokok, made.tot_bunga});
        EXPECT_EQ(QStringList({cells[0], sums, textOf(made.rows.front()), textOf(made.rows.back())})
                      .join(u" | "_s)
                      .toStdString(),
                  line.toStdString());
    }
    EXPECT_THROW((void)loans::scheduleOf({.periode_bulan = 0}), ArithmeticFault);
    EXPECT_THROW((void)loans::scheduleOf({.def_pembulatan = 0}), ArithmeticFault);
}

TEST(Schedule, FallsDueOnTheDaysThatTheServerCounts) {
    TestDatabase database;
    for (QDate first(2024, 1, 1); first < QDate(2028, 1, 1); first = first.addDays(1)) {
        const loans::Schedule made = loans::scheduleOf({.saldo_aw = 1, .periode_bulan = 121, .angs_pertama = first});
        QStringList days;
        for (const loans::Instalment& row : made.rows)
            days << row.tgl_jt.toString(Qt::ISODate);
        ASSERT_EQ(days, database.rows(u"select date_add('%1', interval seq month) from seq_0_to_120 order by seq"_s.arg(
                            first.toString(Qt::ISODate))))
            << first.toString(Qt::ISODate).toStdString();
    }
}
