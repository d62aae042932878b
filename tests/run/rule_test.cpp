#include "tests/run/rule_text.h"

#include <gtest/gtest.h>

namespace {

QStringList list(std::initializer_list<const char*> texts) {
    QStringList all;
    for (const char* text : texts)
        all << QString::fromUtf8(text);
    return all;
}

/// Rules and facts beside the rows that come of them.
struct Case {
    const char* name;
    QStringList rules;
    const char* facts;
    QStringList rows;
};

void check(const std::vector<Case>& cases) {
    for (const Case& c : cases)
        EXPECT_EQ(computedRows(c.rules, QString::fromUtf8(c.facts)).join(u'\n').toStdString(),
                  c.rows.join(u'\n').toStdString())
            << c.name;
}

} // namespace

TEST(Tiers, AdjoiningBandsSplitOneValueAndReplacingOnesTakeItWhole) {
    const QStringList tiers = list({"com=1 if=f13 min=0 max=1 sum=f13 op=* konst=1.5 op2=* uang=20000 jenis=%1",
                                    "com=1 if=f13 min=1 max=0 sum=f13 op=* konst=2 op2=* uang=20000 jenis=%1"});
    const auto ofKind = [&](int jenis) {
        QStringList rules;
        for (const QString& rule : tiers)
            rules << rule.arg(jenis);
        return rules;
    };
    check({{"added", ofKind(1), "f13=7.5", list({"1: 290000 x 7.5 (+) [1.5 * 20.000]"})},
           {"replacing", ofKind(2), "f13=7.5", list({"1: 300000 x 7.5 (+) [2 * 20.000]"})}});
}

TEST(Band, DecidesWhetherARulePassesAndHowMuchOfTheValueCounts) {
    const auto band = [](const char* edges) {
        return QStringList{QStringLiteral("com=1 if=f13 %1 sum=f13").arg(QLatin1String(edges))};
    };
    const QStringList fails = list({"1: 0 x 0 (+) []"});
    check({
        {"above the lower edge", band("min=2 max=5"), "f13=3.5", list({"1: 1.5 x 1.5 (+) []"})},
        {"on the lower edge", band("min=2 max=5"), "f13=2", fails},
        {"on the lower edge, a fixed amount", list({"com=1 if=f13 min=2 max=5 uang=9"}), "f13=2",
         list({"1: 9 x 1 (+) [* 9]"})},
        {"on the upper edge", band("min=2 max=5"), "f13=5", list({"1: 3 x 3 (+) []"})},
        {"above the band", band("min=2 max=5"), "f13=9", list({"1: 3 x 3 (+) []"})},
        {"below the band", band("min=2 max=5"), "f13=1.99", fails},
        {"0 inside a band from 0", band("min=0 max=5"), "f13=0", fails},
        {"value in a band from 0", band("min=0 max=5"), "f13=3", list({"1: 3 x 3 (+) []"})},
        {"no upper edge", band("min=2 max=0"), "f13=7.5", list({"1: 5.5 x 5.5 (+) []"})},
        {"0 above a negative lower edge", band("min=-3 max=0"), "f13=0", fails},
        {"negative value without upper edge", band("min=-3 max=0"), "f13=-1", list({"1: 2 x 2 (+) []"})},
        {"negative upper edge", band("min=1 max=-5"), "f13=7", list({"1: 7 x 7 (+) []"})},
        {"one point, met", band("min=4 max=4"), "f13=4", fails},
        {"one point, passed", band("min=4 max=4"), "f13=6", fails},
    });
}

TEST(Band, OfTwoZerosPaysExactlyWhenTheValueIsZero) {
    check({
        {"figure 0", list({"com=1 if=f13 uang=50000"}), "f13=0", list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"figure above 0", list({"com=1 if=f13 uang=50000"}), "f13=0.5", list({"1: 0 x 0 (+) []"})},
        {"figure below 0", list({"com=1 if=f13 uang=50000"}), "f13=-2", list({"1: 0 x 0 (+) []"})},
        {"no source", list({"com=1 if=x13 uang=50000"}), "f13=9", list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"no source, band above 0", list({"com=1 if=x13 min=0 max=3 uang=50000"}), "f13=2", list({"1: 0 x 0 (+) []"})},
        {"number without a figure", list({"com=1 if=f49 uang=50000"}), "", list({"1: 50000 x 1 (+) [* 50.000]"})},
    });
}

TEST(Formula, CombinesParameterConstantAndMoney) {
    const auto rule = [](const char* operators) {
        return QStringList{QStringLiteral("com=1 sum=f13 uang=20000 %1").arg(QLatin1String(operators))};
    };
    check({
        {"times, times", rule("op=* konst=1.5 op2=*"), "f13=7.5", list({"1: 225000 x 7.5 (+) [1.5 * 20.000]"})},
        {"over, times", rule("op=/ konst=2 op2=*"), "f13=7.5", list({"1: 75000 x 7.5 (+) [2 * 20.000]"})},
        {"less, times", rule("op=- konst=2 op2=*"), "f13=7.5", list({"1: 110000 x 7.5 (+) [2 * 20.000]"})},
        {"plus, times", rule("op=+ konst=2 op2=*"), "f13=7.5", list({"1: 190000 x 7.5 (+) [2 * 20.000]"})},
        {"times, over", rule("op=* konst=4000 op2=/"), "f13=7.5", list({"1: 1.5 x 7.5 (+) [4000 / 20.000]"})},
        {"times, less", rule("op=* konst=1.5 op2=-"), "f13=7.5", list({"1: -19988.75 x 7.5 (+) [1.5 - 20.000]"})},
        {"times, plus", rule("op=* konst=1.5 op2=+"), "f13=7.5", list({"1: 20011.25 x 7.5 (+) [1.5 + 20.000]"})},
        {"constant alone", rule("op=* konst=1.5"), "f13=7.5", list({"1: 11.25 x 7.5 (+) [1.5]"})},
        {"no constant", rule("op=T konst=9 op2=*"), "f13=7.5", list({"1: 150000 x 7.5 (+) [* 20.000]"})},
        {"neither", rule("op=T konst=9 op2=T"), "f13=7.5", list({"1: 7.5 x 7.5 (+) []"})},
        {"0 over a constant", rule("op=/ konst=3 op2=*"), "f13=0", list({"1: 0 x 0 (+) [3 * 20.000]"})},
        {"no source", list({"com=1 sum=x13 op=+ konst=2 op2=* uang=10"}), "f13=7.5", list({"1: 20 x 0 (+) [2 * 10]"})},
    });
}

TEST(Formula, TakesWhatTheBandLeftOfItsOwnFigureAndReadsAnyOtherWhole) {
    check({
        {"same figure", list({"com=1 if=f13 min=2 max=5 sum=f13"}), "f13=9", list({"1: 3 x 3 (+) []"})},
        {"other figure", list({"com=1 if=f13 min=2 max=5 sum=f4"}), "f13=9 f4=22", list({"1: 22 x 22 (+) []"})},
        {"condition off", list({"com=1 if-source=f13 sum=f13"}), "f13=9", list({"1: 0 x 0 (+) []"})},
        {"condition off, other number", list({"com=1 if-source=f4 sum=f13"}), "f13=9", list({"1: 9 x 9 (+) []"})},
        {"condition on a component of that number", list({"com=1 if=k13 min=0 max=0 sum=f13"}), "f13=9",
         list({"1: 9 x 9 (+) []"})},
    });
}

TEST(Formula, RoundsOnceInExtendedPrecision) {
    // In plain double precision each of the first two products would lie on a tie and go to the even neighbour.
    check({
        {"just above a tie", list({"com=1 sum=f13"}), "f13=0.00025", list({"1: 0.0003 x 0 (+) []"})},
        {"just below a tie", list({"com=1 sum=f13"}), "f13=0.00035", list({"1: 0.0003 x 0 (+) []"})},
        {"on a tie, down", list({"com=1 sum=f13 op=/ konst=20000"}), "f13=1", list({"1: 0 x 1 (+) [20000]"})},
        {"on a tie, up", list({"com=1 sum=f13 op=/ konst=20000"}), "f13=3", list({"1: 0.0002 x 3 (+) [20000]"})},
        {"a third", list({"com=1 sum=f13 op=/ konst=3 op2=* uang=3"}), "f13=1", list({"1: 0.9999 x 1 (+) [3 * 3]"})},
        {"money over money", list({"com=1 sum=f13 op=* konst=1 op2=/ uang=3"}), "f13=2",
         list({"1: 0.6667 x 2 (+) [1 / 3]"})},
    });
}

TEST(FixedAmount, IsTheMoneyValueOnceAndTheEmployeesOwnValueWinsIfPositive) {
    check({
        {"rule's value", list({"com=1 uang=50000"}), "", list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"own value", list({"com=1 uang=50000"}), "m1=75000", list({"1: 75000 x 1 (+) [* 75.000]"})},
        {"own value 0", list({"com=1 uang=50000"}), "m1=0", list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"own value negative", list({"com=1 uang=50000"}), "m1=-5", list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"own value below four decimals", list({"com=1 uang=50000"}), "m1=0.00004",
         list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"own value of one unit", list({"com=1 uang=50000"}), "m1=0.00006", list({"1: 0.0001 x 1 (+) [* 0]"})},
        {"deduction", list({"com=1 uang=50000 typex=2"}), "", list({"1: 50000 x 1 (-) [* 50.000]"})},
        {"neither amount nor formula", list({"com=1 uang=50000 use_sum=1"}), "", list({"1: 0 x 0 (+) []"})},
        {"negative rule value", list({"com=1 uang=-1500"}), "", list({"1: -1500 x 1 (+) [* -1.500]"})},
    });
}

TEST(ConditionText, ShowsWholeRupiahAndFifteenDigitsOfTheConstant) {
    const auto constant = [](const char* value) {
        return QStringList{QStringLiteral("com=1 sum=f13 op=* konst=%1").arg(QLatin1String(value))};
    };
    check({
        {"half to even, down", list({"com=1 uang=1500.5"}), "", list({"1: 1500.5 x 1 (+) [* 1.500]"})},
        {"half to even, up", list({"com=1 uang=1501.5"}), "", list({"1: 1501.5 x 1 (+) [* 1.502]"})},
        {"millions", list({"com=1 uang=1500000"}), "", list({"1: 1500000 x 1 (+) [* 1.500.000]"})},
        {"decimals", constant("0.1"), "f13=1", list({"1: 0.1 x 1 (+) [0.1]"})},
        {"sixteenth digit", constant("0.12345678901234567"), "f13=1", list({"1: 0.1235 x 1 (+) [0.123456789012346]"})},
        {"small", constant("0.00001"), "f13=10", list({"1: 0.0001 x 10 (+) [1e-05]"})},
        {"large", constant("1e15"), "f13=0", list({"1: 0 x 0 (+) [1e+15]"})},
    });
}

TEST(Factor, IsKeptToTwoDecimalsLiftedFromATie) {
    const QStringList rule = list({"com=1 sum=f13 op=* konst=0"});
    check({{"on a tie", rule, "f13=0.125", list({"1: 0 x 0.13 (+) [0]"})},
           {"on the next tie", rule, "f13=0.375", list({"1: 0 x 0.38 (+) [0]"})},
           {"just below the lift", rule, "f13=0.12489", list({"1: 0 x 0.12 (+) [0]"})},
           {"lifted", rule, "f13=0.12495", list({"1: 0 x 0.13 (+) [0]"})},
           {"negative", rule, "f13=-0.125", list({"1: 0 x -0.12 (+) [0]"})},
           {"beyond 32 bits", rule, "f13=123456789012.34", list({"1: 0 x 123456789012.34 (+) [0]"})}});
}

TEST(Kinds, AddingKeepsTheFirstTextAlsoAnEmptyOne) {
    check({
        {"two amounts", list({"com=1 uang=100.25", "com=1 uang=200.5 jenis=1"}), "",
         list({"1: 300.75 x 2 (+) [* 100]"})},
        {"first failed", list({"com=1 if=f13 min=5 uang=100", "com=1 uang=200"}), "f13=1", list({"1: 200 x 1 (+) []"})},
        {"second failed", list({"com=1 uang=100", "com=1 if=f13 min=5 uang=200"}), "f13=1",
         list({"1: 100 x 1 (+) [* 100]"})},
        {"factors rounded one by one", list({"com=1 sum=f13", "com=1 sum=f13"}), "f13=0.125",
         list({"1: 0.25 x 0.26 (+) []"})},
        {"sign of the first row", list({"com=1 uang=100 typex=1", "com=1 uang=50 typex=0"}), "",
         list({"1: 150 x 2 (-) [* 100]"})},
    });
}

TEST(Kinds, TheLastReplacingRuleWithAResultWins) {
    check({
        {"replaced", list({"com=1 uang=100", "com=1 uang=200 jenis=2"}), "", list({"1: 200 x 1 (+) [* 200]"})},
        {"failed band takes nothing away", list({"com=1 uang=100", "com=1 if=f13 min=5 uang=200 jenis=2"}), "f13=1",
         list({"1: 100 x 1 (+) [* 100]"})},
        {"0 takes nothing away", list({"com=1 uang=100", "com=1 uang=0 jenis=2"}), "",
         list({"1: 100 x 1 (+) [* 100]"})},
        {"negative replaces", list({"com=1 uang=100", "com=1 uang=-20 jenis=7"}), "", list({"1: -20 x 1 (+) [* -20]"})},
        {"added after replaced", list({"com=1 uang=100", "com=1 uang=200 jenis=2", "com=1 uang=50"}), "",
         list({"1: 250 x 2 (+) [* 200]"})},
        {"empty text keeps the old one", list({"com=1 uang=100", "com=1 sum=f13 jenis=2"}), "f13=3",
         list({"1: 3 x 3 (+) [* 100]"})},
        {"first of its component", list({"com=1 if=f13 min=2 sum=f13 jenis=2"}), "f13=7", list({"1: 5 x 5 (+) []"})},
    });
}

TEST(Kinds, AReplacingFormulaWorksOnTheUnreducedOrCappedValueOfItsCondition) {
    const auto after = [](const char* rule) { return list({"com=1 uang=1"}) + list({rule}); };
    check({
        {"no upper edge: unreduced", after("com=1 if=f13 min=2 sum=f13 op=* konst=10 jenis=2"), "f13=7",
         list({"1: 70 x 7 (+) [10]"})},
        {"above the band: capped", after("com=1 if=f13 min=2 max=5 sum=f13 op=* konst=10 jenis=2"), "f13=7",
         list({"1: 50 x 5 (+) [10]"})},
        {"on the upper edge: reduced", after("com=1 if=f13 min=2 max=5 sum=f13 op=* konst=10 jenis=2"), "f13=5",
         list({"1: 30 x 3 (+) [10]"})},
        {"inside the band: reduced", after("com=1 if=f13 min=2 max=5 sum=f13 op=* konst=10 jenis=2"), "f13=4",
         list({"1: 20 x 2 (+) [10]"})},
        {"whatever the formula names", after("com=1 if=f13 min=2 sum=f4 op=* konst=10 jenis=2"), "f13=7 f4=22",
         list({"1: 70 x 7 (+) [10]"})},
        {"money text twice without a constant", after("com=1 if=f13 min=2 sum=f13 op=T op2=* uang=50000 jenis=2"),
         "f13=7", list({"1: 350000 x 7 (+) [* 50.000 * 50.000]"})},
        {"fixed amount: not recomputed", after("com=1 if=f13 min=2 uang=50000 jenis=2"), "f13=7",
         list({"1: 50000 x 1 (+) [* 50.000]"})},
        {"point band: the result of 0 becomes one", after("com=1 if=f13 min=4 max=4 sum=f13 jenis=2"), "f13=6",
         list({"1: 4 x 4 (+) [* 1]"})},
        {"fault on the second reckoning leaves the row",
         after("com=1 if=f13 min=-1 max=9e14 sum=f4 op2=* uang=20 jenis=2"), "f13=9.5e14 f4=1",
         list({"1: 1 x 1 (+) [* 1]"})},
    });
}

TEST(References, SeeTheFirstResultOfAPeriodComponentAndTheSumOfADailyOne) {
    const auto refer = [](QStringList rules) { return rules << QStringLiteral("com=5 sum=k1"); };
    check({
        {"first row", refer(list({"com=1 param uang=100", "com=1 param uang=30"})), "",
         list({"1: 130 x 2 (+) [* 100]", "5: 100 x 100 (+) []"})},
        {"first row failed", refer(list({"com=1 param if=f13 min=5 uang=100", "com=1 param uang=30"})), "f13=1",
         list({"1: 30 x 1 (+) []", "5: 0 x 0 (+) []"})},
        {"sum of days", refer(list({"com=1 param hitung=1 sum=f13 op2=* uang=10"})), "f13=1,2,0.5",
         list({"1: 35 x 3.5 (+) [* 10]", "5: 35 x 35 (+) []"})},
        {"not published", refer(list({"com=1 uang=100"})), "", list({"1: 100 x 1 (+) [* 100]", "5: 0 x 0 (+) []"})},
        {"later component", list({"com=1 sum=k2", "com=2 param uang=9"}), "",
         list({"1: 0 x 0 (+) []", "2: 9 x 1 (+) [* 9]"})},
        {"itself", list({"com=1 param if=k1 uang=40", "com=1 param sum=k1 op=* konst=0.5"}), "",
         list({"1: 60 x 41 (+) [* 40]"})},
        {"not part of the run", list({"com=1 sum=k3"}), "", list({"1: 0 x 0 (+) []"})},
        {"condition on a component", list({"com=1 param uang=300", "com=2 if=k1 min=100 max=0 sum=f4"}), "f4=22",
         list({"1: 300 x 1 (+) [* 300]", "2: 22 x 22 (+) []"})},
        {"condition and formula on the same component", list({"com=1 param uang=300", "com=2 if=k1 min=100 sum=k1"}),
         "", list({"1: 300 x 1 (+) [* 300]", "2: 300 x 300 (+) []"})},
        {"by name, whatever its case",
         list({"com=1 param nama=pokok uang=1", "com=2 param nama=POKOK uang=2", "com=3 sum=k2"}), "",
         list({"1: 1 x 1 (+) [* 1]", "2: 2 x 1 (+) [* 2]", "3: 1 x 1 (+) []"})},
    });
}

TEST(Faults, EndTheRulesOfTheirComponentOnly) {
    const auto between = [](const char* rule) {
        return list({"com=1 uang=100", rule, "com=1 uang=7", "com=2 uang=5"});
    };
    const QStringList skipped = list({"1: 100 x 1 (+) [* 100]", "2: 5 x 1 (+) [* 5]"});
    check({
        {"constant 0", between("com=1 sum=f13 op=/ konst=0"), "f13=1", skipped},
        {"0 over 0", between("com=1 sum=f13 op=/ konst=0"), "f13=0", skipped},
        {"money 0", between("com=1 sum=f13 op2=/ uang=0"), "f13=1", skipped},
        {"result too large", between("com=1 sum=f13"), "f13=922337203685478", skipped},
        {"largest result", list({"com=1 sum=f13"}), "f13=922337203685477",
         list({"1: 922337203685477 x 922337203685477 (+) []"})},
        {"factor too large", between("com=1 sum=f13 op=/ konst=1e10"), "f13=1e17", skipped},
        {"money too large to be read", between("com=1 uang=1e15 if=f13 min=1"), "f13=0", skipped},
        {"figure that cannot be read", between("com=1 if=f13"), "f13=!", skipped},
        {"first row", list({"com=1 sum=f13 op=/ konst=0", "com=2 uang=5"}), "f13=1", list({"2: 5 x 1 (+) [* 5]"})},
        {"nothing published", list({"com=1 param sum=f13 op=/ konst=0", "com=1 param uang=3", "com=2 sum=k1"}), "f13=1",
         list({"2: 0 x 0 (+) []"})},
    });
}

TEST(DailyComponent, AddsItsDaysAndShowsTheLastText) {
    check({
        {"sum", list({"com=1 hitung=1 sum=f13 op2=* uang=1000"}), "f13=1,0,2.5", list({"1: 3500 x 3.5 (+) [* 1.000]"})},
        {"only days inside the band", list({"com=1 hitung=1 if=f13 min=1 max=0 uang=1000"}), "f13=0.5,2,3",
         list({"1: 2000 x 2 (+) [* 1.000]"})},
        {"text of the last day that has one",
         list({"com=1 hitung=1 if=f13 min=0 max=2 uang=10", "com=1 hitung=1 if=f13 min=2 max=0 uang=20 jenis=2"}),
         "f13=3,1,0", list({"1: 30 x 2 (+) [* 10]"})},
        {"replacing within the day, adding between days",
         list({"com=1 hitung=1 if=f13 min=0 max=1 sum=f13 op=* konst=1.5 op2=* uang=1000",
               "com=1 hitung=1 if=f13 min=1 max=0 sum=f13 op=* konst=2 op2=* uang=1000 jenis=2"}),
         "f13=0.5,3", list({"1: 6750 x 3.5 (+) [2 * 1.000]"})},
        {"factor rounded each day", list({"com=1 hitung=1 sum=f13"}), "f13=0.125,0.125,0.125",
         list({"1: 0.375 x 0.39 (+) []"})},
        {"kind of the first row only", list({"com=1 hitung=1 uang=10", "com=1 hitung=0 uang=1"}), "f13=0,0",
         list({"1: 22 x 4 (+) [* 10]"})},
        {"period component with a daily later row", list({"com=1 hitung=0 uang=10", "com=1 hitung=1 uang=1"}),
         "f13=0,0", list({"1: 11 x 2 (+) [* 10]"})},
        {"deduction", list({"com=1 hitung=1 typex=1 uang=10"}), "f13=0,0", list({"1: 20 x 2 (-) [* 10]"})},
    });
}

TEST(DailyComponent, LosesOnlyTheDayOfAFaultAndIsLostWhereTheSumDoesNotFit) {
    check({
        {"row of the fault", list({"com=1 hitung=1 uang=5", "com=1 hitung=1 if=f13 sum=f4 op=/ konst=0"}),
         "f13=0,1,0 f4=1,1,1", list({"1: 15 x 3 (+) [* 5]"})},
        {"later rows of the day", list({"com=1 hitung=1 sum=f13 op2=* uang=1e9", "com=1 hitung=1 uang=5"}), "f13=1e9,1",
         list({"1: 1000000005 x 2 (+) [* 1.000.000.000]"})},
        {"sum over the days", list({"com=1 uang=1", "com=2 hitung=1 uang=5e14", "com=3 uang=1"}), "f13=0,0",
         list({"1: 1 x 1 (+) [* 1]"})},
        {"sum within a day", list({"com=1 hitung=1 uang=3e14", "com=1 hitung=1 uang=7e14", "com=2 uang=1"}), "f13=0,0",
         list({"1: 600000000000000 x 2 (+) [* 300.000.000.000.000]", "2: 1 x 1 (+) [* 1]"})},
    });
}

TEST(DailyComponent, OfAReversedPeriodEndsAsAnEmptyRow) {
    SmallCompany company = smallCompany(list({"com=1 hitung=1 typex=1 param uang=10", "com=2 sum=k1"}), {});
    company.selections.period.tanggal_akhir = company.selections.period.tanggal_awal.addDays(-1);
    run::MemoryLookups lookups(company.selections.period, company.tables);
    run::Run run;
    ASSERT_EQ(proses(run, company.selections, lookups), run::Notice::None);
    EXPECT_EQ(describe(run.lines.at(0).rows), list({"1: 0 x 0 (+) []", "2: 0 x 0 (+) []"}));
}
