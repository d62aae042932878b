#include "run/totals.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

using run::Line;
using run::Row;
using run::Run;

/// One row, of type 0 for an earning.
struct Amount {
    int type = 0;
    double subtot_payroll = 0;
};

Run runOf(const std::vector<std::vector<Amount>>& lines) {
    Run made;
    for (const auto& amounts : lines) {
        Line& line = made.lines.emplace_back();
        line.no_urut = ++made.nomor_rincian_terakhir;
        for (const Amount& amount : amounts) {
            Row& row = line.rows.emplace_back();
            row.no_urut_ref = ++made.nomor_baris_terakhir;
            row.type = amount.type;
            row.subtot_payroll = amount.subtot_payroll;
        }
    }
    return made;
}

QString number(double value) {
    return QString::number(value, 'f', 1).remove(QStringLiteral(".0"));
}

/// "1=500 (1:300 2:200)" per line, then the total.
std::string describe(const Run& made) {
    QStringList lines;
    for (const Line& line : made.lines) {
        QStringList rows;
        for (const Row& row : line.rows)
            rows << QStringLiteral("%1:%2").arg(row.no_urut_ref).arg(number(row.subtot_payroll));
        lines << QStringLiteral("%1=%2 (%3)").arg(line.no_urut).arg(number(line.tot_payroll), rows.join(u' '));
    }
    return (lines << QStringLiteral("total ") + number(made.tot_process)).join(QStringLiteral(", ")).toStdString();
}

struct Case {
    const char* name;
    std::vector<std::vector<Amount>> lines;
    double round_value;
    const char* expected;
};

void check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        Run made = runOf(c.lines);
        hitung(made, c.round_value);
        EXPECT_EQ(describe(made), c.expected) << c.name;
    }
}

constexpr double wraps = 2147483648.0;

} // namespace

TEST(Totals, RoundEachRowThenTheLine) {
    check({
        {"down to even, up to the unit",
         {{{0, 4750300.5}, {0, 250000}, {1, 120000}}},
         1000,
         "1=4881000 (1:4750300 2:250000 3:120000), total 4881000"},
        {"up to even", {{{0, 1501.5}}}, 0, "1=1502 (1:1502), total 1502"},
        {"four decimals before the whole number",
         {{{0, 1500.50004}, {0, 1500.50006}}},
         0,
         "1=3001 (1:1500 2:1501), total 3001"},
        {"a multiple stays", {{{0, 3000}}}, 1000, "1=3000 (1:3000), total 3000"},
        {"unit above the net", {{{0, 3}}}, 500, "1=500 (1:3), total 500"},
        {"unit of 0", {{{0, 1234}}}, 0, "1=1234 (1:1234), total 1234"},
        {"negative unit", {{{0, 1234}}}, -500, "1=1234 (1:1234), total 1234"},
        {"unit on a tie", {{{0, 7}}}, 2.5, "1=8 (1:7), total 8"},
        {"any type but 0 deducts", {{{0, 100}, {2, 30}, {-1, 20}}}, 0, "1=50 (1:100 2:30 3:20), total 50"},
        {"no line", {}, 1000, "total 0"},
    });
}

TEST(Totals, WrapRoundAt32Bits) {
    check({
        {"a row", {{{0, wraps + 5}, {0, 10}}}, 0, "total -2147483633"},
        {"a row far beyond", {{{0, 2 * wraps + 7}}}, 0, "1=7 (1:7), total 7"},
        {"a line", {{{0, wraps - 1}, {0, wraps - 1}, {0, 12}}}, 0, "1=10 (1:2147483647 2:2147483647 3:12), total 10"},
        {"raising to the unit", {{{0, wraps - 1}}}, 1000, "total -2147483296"},
        {"the run",
         {{{0, wraps - 1}}, {{0, wraps - 1}}, {{0, 12}}},
         0,
         "1=2147483647 (1:2147483647), 2=2147483647 (2:2147483647), 3=12 (3:12), total 10"},
    });
}

TEST(Cleaning, TakesRowsAndLinesWithoutAPositiveAmountButNotTheirTotals) {
    check({
        {"rows of 0 and below", {{{0, 0}, {0, 100}, {0, -30}, {0, 0.4}}}, 0, "1=70 (2:100), total 70"},
        {"line of 0 with a positive row", {{{0, 100}, {1, 100}}, {{0, 5}}}, 0, "2=5 (3:5), total 5"},
        {"line below 0 counts in the total", {{{0, 5}}, {{1, 3}}}, 0, "1=5 (1:5), total 2"},
        {"negative net is not raised", {{{0, 5}}, {{1, 1500}}}, 1000, "1=1000 (1:5), total -500"},
        {"negative deduction adds and goes", {{{0, 5}, {1, -3}}}, 0, "1=8 (1:5), total 8"},
        {"no rows", {{}, {{0, 5}}, {}}, 0, "2=5 (1:5), total 5"},
    });
}

TEST(Cleaning, LeavesTotalsThatAgreeAfterTheNextPass) {
    run::Run made = runOf({{{0, 100}, {0, -30}}, {{1, 3}}});
    hitung(made, 0);
    EXPECT_EQ(describe(made), "1=70 (1:100), total 67");
    hitung(made, 0);
    EXPECT_EQ(describe(made), "1=100 (1:100), total 100");
}

TEST(Totals, AFaultEndsItsLineOrTheWalk) {
    check({
        {"a row that is no amount",
         {{{0, 100}, {0, 1e15}, {0, 7.5}}, {{0, 5}}},
         0,
         "1=100 (1:100 2:1000000000000000 3:7.5), 2=5 (4:5), total 105"},
        {"a unit that is no amount", {{{0, 100.5}}, {{0, 5}}}, 1e10, "total 0"},
    });
}

TEST(Numbers, AreGivenFreeOnlyByTheLastOne) {
    run::Run gap = runOf({{{0, 1}, {0, 0}, {0, 2}}, {{0, 0}}, {{0, 3}}});
    hitung(gap, 0);
    EXPECT_EQ(describe(gap), "1=3 (1:1 3:2), 3=3 (5:3), total 6");
    EXPECT_EQ(gap.nomor_rincian_terakhir, 3);
    EXPECT_EQ(gap.nomor_baris_terakhir, 5);
    // 5 goes, 4 and 2 are gone already: the numbers stop falling at the first gap.
    gap.clear();
    EXPECT_EQ(gap.nomor_rincian_terakhir, 2);
    EXPECT_EQ(gap.nomor_baris_terakhir, 4);

    run::Run whole = runOf({{{0, 1}, {0, 2}}, {{0, 3}}});
    whole.clear();
    EXPECT_EQ(whole.nomor_rincian_terakhir, 0);
    EXPECT_EQ(whole.nomor_baris_terakhir, 0);
}

TEST(Numbers, OfRowsAndLinesAtTheEndFallBackWhileCleaning) {
    run::Run made = runOf({{{0, 1}}, {{0, 2}, {0, 0}, {0, 0}}, {{1, 3}}});
    hitung(made, 0);
    EXPECT_EQ(describe(made), "1=1 (1:1), 2=2 (2:2), total 0");
    EXPECT_EQ(made.nomor_rincian_terakhir, 2);
    EXPECT_EQ(made.nomor_baris_terakhir, 2);
}
