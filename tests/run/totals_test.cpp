#include "tests/run/form_run.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Amounts of rows parted by blanks, lines by commas; "1:300" is of type 1, an amount alone of type 0, an earning.
run::Run runOf(const char* lines) {
    run::Run made;
    for (const QString& amounts : QString::fromUtf8(lines).split(u',')) {
        run::Line& line = made.lines.emplace_back();
        for (const QString& amount : amounts.split(u' ', Qt::SkipEmptyParts)) {
            run::Row& row = line.rows.emplace_back();
            row.type = amount.contains(u':') ? amount.section(u':', 0, 0).toInt() : 0;
            row.subtot_payroll = amount.section(u':', -1).toDouble();
        }
    }
    return made;
}

struct Case {
    const char* name;
    const char* lines;
    double round_value;
    const char* expected;
};

void check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        FormRun form(runOf(c.lines), c.round_value);
        (void)form.copy.hitung();
        EXPECT_EQ(form.text(), c.expected) << c.name;
    }
}

} // namespace

TEST(Totals, RoundEachRowThenTheLine) {
    check({
        {"down to even, up to the unit", "4750300.5 250000 1:120000", 1000,
         "1=4881000 (1:4750300 2:250000 3:120000), total 4881000"},
        {"each up to even", "1501.5 1501.5", 0, "1=3004 (1:1502 2:1502), total 3004"},
        {"four decimals before the whole number", "1500.50004 1500.50006", 0, "1=3001 (1:1500 2:1501), total 3001"},
        {"a multiple stays", "3000", 1000, "1=3000 (1:3000), total 3000"},
        {"unit above the net", "3", 500, "1=500 (1:3), total 500"},
        {"unit of 0", "1234", 0, "1=1234 (1:1234), total 1234"},
        {"negative unit", "1234", -500, "1=1234 (1:1234), total 1234"},
        {"unit on a tie", "7", 2.5, "1=8 (1:7), total 8"},
        {"any type but 0 deducts", "100 2:30 -1:20", 0, "1=50 (1:100 2:30 3:20), total 50"},
    });
}

TEST(Totals, OfTheCurrentLineOnTheFormAreOfRowsRoundedOneByOne) {
    FormRun form(runOf("1.5 1.5 1:2.5 2:0.5, 9"));
    const run::WorkingCopy::Sums sums = form.copy.sums();
    EXPECT_EQ(std::pair(sums.tunjangan, sums.potongan), std::pair(4.0, 2.0));
}

TEST(Totals, WrapRoundAt32Bits) {
    check({
        {"a row", "2147483653 10", 0, "total -2147483633"},
        {"a row far beyond", "4294967303", 0, "1=7 (1:7), total 7"},
        {"a line", "2147483647 2147483647 12", 0, "1=10 (1:2147483647 2:2147483647 3:12), total 10"},
        {"a net", "10 1:2147483647 1:2", 0, "total -2147483639"},
        {"raising to the unit", "2147483647", 1000, "total -2147483296"},
        {"the run", "2147483647, 2147483647, 12", 0,
         "1=2147483647 (1:2147483647), 2=2147483647 (2:2147483647), 3=12 (3:12), total 10"},
    });
}

TEST(Cleaning, TakesRowsAndLinesWithoutAPositiveAmountButNotTheirTotals) {
    check({
        {"rows of 0 and below", "0 100 -30 0.4", 0, "1=70 (2:100), total 70"},
        {"line of 0 with a positive row", "100 1:100, 5", 0, "2=5 (3:5), total 5"},
        {"line below 0 counts in the total", "5, 1:3", 0, "1=5 (1:5), total 2"},
        {"negative net is not raised", "5, 1:1500", 1000, "1=1000 (1:5), total -500"},
        {"negative deduction adds and goes", "5 1:-3", 0, "1=8 (1:5), total 8"},
        {"no rows", ", 5, ", 0, "2=5 (1:5), total 5"},
        {"nothing at all", "", 1000, "total 0"},
    });
}

TEST(Cleaning, LeavesTotalsThatAgreeAfterTheNextPass) {
    FormRun form(runOf("100 -30, 1:3"));
    (void)form.copy.hitung();
    EXPECT_EQ(form.text(), "1=70 (1:100), total 67");
    (void)form.copy.hitung();
    EXPECT_EQ(form.text(), "1=100 (1:100), total 100");
}

TEST(Totals, AFaultEndsItsLineOrTheWalk) {
    check({
        {"a row that is no amount", "100 1e15 7.5, 5", 0,
         "1=100 (1:100 2:1000000000000000 3:7.5), 2=5 (4:5), total 105"},
        {"a unit that is no amount", "100.5, 5", 1e10, "total 0"},
    });
}

TEST(Numbers, AreGivenFreeOnlyByTheLastOne) {
    FormRun gap(runOf("1 0 2, 0, 3"));
    (void)gap.copy.hitung();
    EXPECT_EQ(gap.text(), "1=3 (1:1 3:2), 3=3 (5:3), total 6");
    // 5 goes, 4 and 2 are gone already: the numbers stop falling at the first gap.
    gap.copy.deleteAllLines();
    gap.copy.appendRun(runOf("7, 8"));
    EXPECT_EQ(gap.text(), "3=0 (5:7), 4=0 (6:8), total 6");

    FormRun end(runOf("1, 2 0 0, 1:3"));
    (void)end.copy.hitung();
    EXPECT_EQ(end.text(), "1=1 (1:1), 2=2 (2:2), total 0");
    end.copy.appendRun(runOf("7"));
    EXPECT_EQ(end.text(), "1=1 (1:1), 2=2 (2:2), 3=0 (3:7), total 0");
}
