#include "tests/run/rule_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// One case a line: name | rules | facts | rows that come of them; a backslash carries on in the next line. The rules
/// stand in place of %1.
void check(const char* pattern, const char* cases) {
    for (const QString& line : QString::fromUtf8(cases).remove(u"\\\n"_s).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList cells = line.split(u'|');
        const QString rules = QString::fromUtf8(pattern).arg(cells.at(1).simplified());
        const run::Run made = smallCompany(rules, cells.at(2)).computed();
        ASSERT_EQ(made.lines.size(), 1U) << line.toStdString();
        EXPECT_EQ(describe(made.lines.front().rows).toStdString(), cells.at(3).trimmed().toStdString())
            << line.toStdString();
    }
}

} // namespace

TEST(Tiers, AdjoiningBandsSplitOneValueAndReplacingOnesTakeItWhole) {
    check("if=f13 min=0 max=1 sum=f13 op=* konst=1.5 op2=* uang=20000 %1; "
          "if=f13 min=1 max=0 sum=f13 op=* konst=2 op2=* uang=20000 %1",
          R"(
        added     | jenis=1 | f13=7.5 | 1: 290000 x 7.5 (+) [1.5 * 20.000]
        replacing | jenis=2 | f13=7.5 | 1: 300000 x 7.5 (+) [2 * 20.000])");
}

TEST(Band, DecidesWhetherARulePassesAndHowMuchOfTheValueCounts) {
    check("if=f13 %1", R"(
        above the lower edge    | min=2 max=5 sum=f13  | f13=3.5  | 1: 1.5 x 1.5 (+) []
        on it, a fixed amount   | min=2 max=5 uang=9   | f13=2    | 1: 9 x 1 (+) [* 9]
        above the band          | min=2 max=5 sum=f13  | f13=9    | 1: 3 x 3 (+) []
        below the band          | min=2 max=5 sum=f13  | f13=1.99 | 1: 0 x 0 (+) []
        0 inside a band from 0  | min=0 max=5 uang=9   | f13=0    | 1: 0 x 0 (+) []
        no upper edge           | min=2 max=0 sum=f13  | f13=7.5  | 1: 5.5 x 5.5 (+) []
        0 above a negative edge | min=-3 max=0 sum=f13 | f13=0    | 1: 0 x 0 (+) []
        negative, no upper edge | min=-3 max=0 sum=f13 | f13=-1   | 1: 2 x 2 (+) []
        negative upper edge     | min=1 max=-5 sum=f13 | f13=7    | 1: 7 x 7 (+) [])");
}

TEST(Band, OfTwoZerosPaysExactlyWhenTheValueIsZero) {
    check("%1 uang=50000", R"(
        figure 0                | if=f13             | f13=0   | 1: 50000 x 1 (+) [* 50.000]
        figure above 0          | if=f13             | f13=0.5 | 1: 0 x 0 (+) []
        figure below 0          | if=f13             | f13=-2  | 1: 0 x 0 (+) []
        no source               | if=x13             | f13=9   | 1: 50000 x 1 (+) [* 50.000]
        number without a figure | if=f49             |         | 1: 50000 x 1 (+) [* 50.000])");
}

TEST(Formula, CombinesParameterConstantAndMoney) {
    check("sum=f13 uang=20000 %1", R"(
        times, times      | op=* konst=1.5 op2=*       | f13=7.5 | 1: 225000 x 7.5 (+) [1.5 * 20.000]
        times, over       | op=* konst=4000 op2=/      | f13=7.5 | 1: 1.5 x 7.5 (+) [4000 / 20.000]
        times, less       | op=* konst=1.5 op2=-       | f13=7.5 | 1: -19988.75 x 7.5 (+) [1.5 - 20.000]
        times, plus       | op=* konst=1.5 op2=+       | f13=7.5 | 1: 20011.25 x 7.5 (+) [1.5 + 20.000]
        no constant       | op=T konst=9 op2=*         | f13=7.5 | 1: 150000 x 7.5 (+) [* 20.000]
        neither           | op=T konst=9 op2=T         | f13=7.5 | 1: 7.5 x 7.5 (+) []
        no source         | sum=x13 op=+ konst=2 op2=* | f13=7.5 | 1: 40000 x 0 (+) [2 * 20.000])");
}

TEST(Formula, TakesWhatTheBandLeftOfItsOwnFigureAndReadsAnyOtherWhole) {
    check("%1", R"(
        same figure                 | if=f13 min=2 max=5 sum=f13 | f13=9       | 1: 3 x 3 (+) []
        other figure                | if=f13 min=2 max=5 sum=f4  | f13=9 f4=22 | 1: 22 x 22 (+) []
        condition off               | if-source=f13 sum=f13      | f13=9       | 1: 0 x 0 (+) []
        condition off, other number | if-source=f4 sum=f13       | f13=9       | 1: 9 x 9 (+) []
        component of that number    | if=k13 min=0 max=0 sum=f13 | f13=9       | 1: 9 x 9 (+) [])");
}

// In plain double precision each of the first seven results would lie on a tie and go to the even neighbour, or beyond
// it.
TEST(Formula, RoundsOnceInExtendedPrecisionAndItsFactorToTwoDecimalsLiftedFromATie) {
    check("sum=f13 %1", R"(
        just above a tie      |                           | f13=0.00025         | 1: 0.0003 x 0 (+) []
        just below a tie      |                           | f13=0.00035         | 1: 0.0003 x 0 (+) []
        product               | op=* konst=0.115          | f13=0.03            | 1: 0.0035 x 0.03 (+) [0.115]
        quotient              | op=/ konst=40             | f13=0.03            | 1: 0.0007 x 0.03 (+) [40]
        sum                   | op=+ konst=0.001          | f13=0.00005         | 1: 0.0011 x 0 (+) [0.001]
        difference            | op=- konst=0.072          | f13=0.00005         | 1: -0.0719 x 0 (+) [0.072]
        times money           | op2=* uang=1234.5682      | f13=1000000.0022    | \
            1: 1234568202.7161 x 1000000 (+) [* 1.235]
        on a tie, down        | op=/ konst=20000          | f13=1               | 1: 0 x 1 (+) [20000]
        on a tie, up          | op=/ konst=20000          | f13=3               | 1: 0.0002 x 3 (+) [20000]
        a third               | op=/ konst=3 op2=* uang=3 | f13=1               | 1: 0.9999 x 1 (+) [3 * 3]
        money over money      | op=* konst=1 op2=/ uang=3 | f13=2               | 1: 0.6667 x 2 (+) [1 / 3]
        factor on a tie       | op=*                      | f13=0.125           | 1: 0 x 0.13 (+) [0]
        factor below the lift | op=*                      | f13=0.12489         | 1: 0 x 0.12 (+) [0]
        factor lifted         | op=*                      | f13=0.12495         | 1: 0 x 0.13 (+) [0]
        negative factor       | op=*                      | f13=-0.125          | 1: 0 x -0.12 (+) [0]
        beyond 32 bits        | op=*                      | f13=123456789012.34 | 1: 0 x 123456789012.34 (+) [0])");
}

TEST(FixedAmount, IsTheMoneyValueOnceAndTheEmployeesOwnValueWinsIfPositive) {
    check("%1", R"(
        rule's value               | uang=50000           |            | 1: 50000 x 1 (+) [* 50.000]
        own value                  | uang=50000           | m1=75000   | 1: 75000 x 1 (+) [* 75.000]
        own value 0                | uang=50000           | m1=0       | 1: 50000 x 1 (+) [* 50.000]
        own value negative         | uang=50000           | m1=-5      | 1: 50000 x 1 (+) [* 50.000]
        own value below a unit     | uang=50000           | m1=0.00004 | 1: 50000 x 1 (+) [* 50.000]
        own value of one unit      | uang=50000           | m1=0.00006 | 1: 0.0001 x 1 (+) [* 0]
        deduction                  | uang=50000 typex=2   |            | 1: 50000 x 1 (-) [* 50.000]
        neither amount nor formula | uang=50000 use_sum=1 |            | 1: 0 x 0 (+) []
        negative                   | uang=-1500           |            | 1: -1500 x 1 (+) [* -1.500])");
}

TEST(ConditionText, ShowsWholeRupiahAndFifteenDigitsOfTheConstant) {
    check("%1", R"(
        half to even, down | uang=1500.5                            |        | 1: 1500.5 x 1 (+) [* 1.500]
        sixteenth digit    | sum=f13 op=* konst=0.12345678901234567 | f13=1  | 1: 0.1235 x 1 (+) [0.123456789012346]
        small              | sum=f13 op=* konst=0.00001             | f13=10 | 1: 0.0001 x 10 (+) [1e-05]
        large              | sum=f13 op=* konst=1e15                | f13=0  | 1: 0 x 0 (+) [1e+15])");
}

TEST(Kinds, AddingKeepsTheFirstTextAlsoAnEmptyOne) {
    check("%1", R"(
        two amounts                | uang=100.25; uang=200.5 jenis=1   |           | 1: 300.75 x 2 (+) [* 100]
        first failed               | if=f13 min=5 uang=100; uang=200   | f13=1     | 1: 200 x 1 (+) []
        second failed              | uang=100; if=f13 min=5 uang=200   | f13=1     | 1: 100 x 1 (+) [* 100]
        factors rounded one by one | sum=f13; sum=f13                  | f13=0.125 | 1: 0.25 x 0.26 (+) []
        sign of the first row      | uang=100 typex=1; uang=50 typex=0 |           | 1: 150 x 2 (-) [* 100])");
}

TEST(Kinds, TheLastReplacingRuleWithAResultWins) {
    check("%1", R"(
        replaced                 | uang=100; uang=200 jenis=2              |       | 1: 200 x 1 (+) [* 200]
        failed                   | uang=100; if=f13 min=5 uang=200 jenis=2 | f13=1 | 1: 100 x 1 (+) [* 100]
        0 takes nothing away     | uang=100; uang=0 jenis=2                |       | 1: 100 x 1 (+) [* 100]
        negative replaces        | uang=100; uang=-20 jenis=7              |       | 1: -20 x 1 (+) [* -20]
        added after              | uang=100; uang=200 jenis=2; uang=50     |       | 1: 250 x 2 (+) [* 200]
        empty text keeps the old | uang=100; sum=f13 jenis=2               | f13=3 | 1: 3 x 3 (+) [* 100]
        first of its component   | if=f13 min=2 sum=f13 jenis=2            | f13=7 | 1: 5 x 5 (+) [])");
}

TEST(Kinds, AReplacingFormulaWorksOnTheUnreducedOrCappedValueOfItsCondition) {
    check("uang=1; if=f13 %1 jenis=2", R"(
        no upper edge: unreduced | min=2 sum=f13 op=* konst=10 | f13=7 | 1: 70 x 7 (+) [10]
        above the band: capped | min=2 max=5 sum=f13 op=* konst=10 | f13=7 | 1: 50 x 5 (+) [10]
        on the upper edge: reduced | min=2 max=5 sum=f13 op=* konst=10 | f13=5 | 1: 30 x 3 (+) [10]
        inside the band: reduced | min=2 max=5 sum=f13 op=* konst=10 | f13=4 | 1: 20 x 2 (+) [10]
        whatever the formula names | min=2 sum=f4 op=* konst=10 | f13=7 f4=22 | 1: 70 x 7 (+) [10]
        money text twice | min=2 sum=f13 op=T op2=* uang=50000 | f13=7 | 1: 350000 x 7 (+) [* 50.000 * 50.000]
        fixed amount: not recomputed | min=2 uang=50000 | f13=7 | 1: 50000 x 1 (+) [* 50.000]
        point band: the result of 0 becomes one | min=4 max=4 sum=f13 | f13=6 | 1: 4 x 4 (+) [* 1]
        fault on the second reckoning | min=-1 max=9e14 sum=f4 op2=* uang=20 | f13=9.5e14 f4=1 | 1: 1 x 1 (+) [* 1])");
}

TEST(References, SeeTheFirstResultOfAPeriodComponentAndTheSumOfADailyOne) {
    check("%1; com=5 sum=k1", R"(
        first row | param uang=100; param uang=30 |  | 1: 130 x 2 (+) [* 100]; 5: 100 x 100 (+) []
        first row failed | param if=f13 min=5 uang=100; param uang=30 | f13=1 | 1: 30 x 1 (+) []; 5: 0 x 0 (+) []
        sum of days | param hitung=1 sum=f13 op2=* uang=10 | f13=1,2,0.5 | 1: 35 x 3.5 (+) [* 10]; 5: 35 x 35 (+) []
        not published | uang=100 |  | 1: 100 x 1 (+) [* 100]; 5: 0 x 0 (+) []
        fault of the first row | param sum=f13 op=/; param uang=3           | f13=1       | 5: 0 x 0 (+) [])");
    check("%1", R"(
        later component | sum=k2; com=2 param uang=9 |  | 1: 0 x 0 (+) []; 2: 9 x 1 (+) [* 9]
        itself | param if=k1 uang=40; param sum=k1 op=* konst=0.5 |  | 1: 60 x 41 (+) [* 40]
        not part of the run | sum=k3 |  | 1: 0 x 0 (+) []
        in a condition | param uang=300; com=2 if=k1 min=100 sum=f4 | f4=22 | 1: 300 x 1 (+) [* 300]; 2: 22 x 22 (+) []
        in both | param uang=300; com=2 if=k1 min=100 sum=k1 | | 1: 300 x 1 (+) [* 300]; 2: 300 x 300 (+) []
        by name, whatever its case | param nama=pokok uang=1; com=2 param nama=POKOK uang=2; com=3 sum=k2 | \
            | 1: 1 x 1 (+) [* 1]; 2: 2 x 1 (+) [* 2]; 3: 1 x 1 (+) [])");
}

TEST(Faults, EndTheRulesOfTheirComponentOnly) {
    check("uang=100; %1; uang=7; com=2 uang=5", R"(
        constant 0 | sum=f13 op=/ konst=0 | f13=1 | 1: 100 x 1 (+) [* 100]; 2: 5 x 1 (+) [* 5]
        money 0 | sum=f13 op2=/ uang=0 | f13=1 | 1: 100 x 1 (+) [* 100]; 2: 5 x 1 (+) [* 5]
        result too large | sum=f13 | f13=922337203685478 | 1: 100 x 1 (+) [* 100]; 2: 5 x 1 (+) [* 5]
        factor too large | sum=f13 op=/ konst=1e10 | f13=1e17 | 1: 100 x 1 (+) [* 100]; 2: 5 x 1 (+) [* 5]
        money too large to be read | uang=1e15 if=f13 min=1 | f13=0 | 1: 100 x 1 (+) [* 100]; 2: 5 x 1 (+) [* 5]
        figure that cannot be read | if=f13 | f13=! | 1: 100 x 1 (+) [* 100]; 2: 5 x 1 (+) [* 5])");
    check("%1; com=2 uang=5", R"(
        first row      | sum=f13 op=/ konst=0 | f13=1               | 2: 5 x 1 (+) [* 5]
        largest | sum=f13 | f13=922337203685477 | 1: 922337203685477 x 922337203685477 (+) []; 2: 5 x 1 (+) [* 5])");
}

TEST(DailyComponent, AddsItsDaysAndShowsTheLastText) {
    check("hitung=1 %1", R"(
        sum | sum=f13 op2=* uang=1000 | f13=1,0,2.5 | 1: 3500 x 3.5 (+) [* 1.000]
        days inside the band | if=f13 min=1 max=0 uang=1000 | f13=0.5,2,3 | 1: 2000 x 2 (+) [* 1.000]
        text of the last day that has one | if=f13 min=0 max=2 uang=10; hitung=1 if=f13 min=2 max=0 uang=20 jenis=2 \
            | f13=3,1,0 | 1: 30 x 2 (+) [* 10]
        replacing within the day, adding between days | if=f13 min=0 max=1 sum=f13 op=* konst=1.5 op2=* uang=1000; \
            hitung=1 if=f13 min=1 max=0 sum=f13 op=* konst=2 op2=* uang=1000 jenis=2 | f13=0.5,3 | \
            1: 6750 x 3.5 (+) [2 * 1.000]
        factor rounded each day | sum=f13 | f13=0.125,0.125,0.125 | 1: 0.375 x 0.39 (+) []
        kind of the first row only | uang=10; hitung=0 uang=1 | f13=0,0 | 1: 22 x 4 (+) [* 10]
        daily later row | hitung=0 uang=10; hitung=1 uang=1 | f13=0,0 | 1: 11 x 2 (+) [* 10]
        deduction | typex=1 uang=10 | f13=0,0 | 1: 20 x 2 (-) [* 10])");
}

TEST(DailyComponent, LosesOnlyTheDayOfAFaultAndIsLostWhereTheSumDoesNotFit) {
    check("%1", R"(
        row of a fault | hitung=1 uang=5; hitung=1 if=f13 sum=f4 op=/ konst=0 | f13=0,1,0 f4=1,1,1 | 1: 15 x 3 (+) [* 5]
        later rows of the day | hitung=1 sum=f13 op2=* uang=1e9; hitung=1 uang=5 | f13=1e9,1 | \
            1: 1000000005 x 2 (+) [* 1.000.000.000]
        sum over the days | uang=1; com=2 hitung=1 uang=5e14; com=3 uang=1 | f13=0,0 | 1: 1 x 1 (+) [* 1]
        sum within a day | hitung=1 uang=3e14; hitung=1 uang=7e14; com=2 uang=1 | f13=0,0 | \
            1: 600000000000000 x 2 (+) [* 300.000.000.000.000]; 2: 1 x 1 (+) [* 1])");
}

TEST(DailyComponent, OfAReversedPeriodEndsAsAnEmptyRow) {
    SmallCompany company = smallCompany(u"hitung=1 typex=1 param uang=10; com=2 sum=k1"_s);
    company.selections.period.tanggal_akhir = company.selections.period.tanggal_awal.addDays(-1);
    EXPECT_EQ(describe(company.computed().lines.at(0).rows), u"1: 0 x 0 (+) []; 2: 0 x 0 (+) []"_s);
}
