#include "register/reports/captions.h"
#include "register/reports/print_rules.h"
#include "register/reports/statements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PrintRules, AFactorShowsDecimalsOnlyWhereTwoPlacesHoldAny) {
    struct Case {
        double faktor;
        const char16_t* text;
    };
    for (const Case& each :
         {Case{2.5, u"2,50"}, Case{2, u"2"}, Case{2.004, u"2"}, Case{2.006, u"2,01"}, Case{0, u"0"},
          Case{1234.25, u"1.234,25"}, Case{12345, u"12.345"}, Case{-0.5, u"-0,50"}, Case{0.995, u"1"}})
        EXPECT_EQ(payroll::faktorText(each.faktor), QString::fromUtf16(each.text)) << each.faktor;
}

TEST(PrintRules, TheFootMovesDownByALineForEachDeductionTooMany) {
    struct Case {
        int earnings, deductions;
        double inches;
    };
    for (const Case& each :
         {Case{3, 3, 0.2292}, Case{3, 4, 0.4192}, Case{3, 10, 1.5592}, Case{9, 1, 0.2292}, Case{0, 0, 0.2292}})
        EXPECT_NEAR(payroll::ppSubReport3Print(each.earnings, each.deductions), each.inches * 25.4, 1e-9)
            << each.earnings << " " << each.deductions;
}

TEST(PrintRules, TheFilterJoinsTheTickedRuns) {
    EXPECT_EQ(payroll::processFilter({}), QString());
    EXPECT_EQ(payroll::processFilter({7}), u"process_id=7 "_s);
    EXPECT_EQ(payroll::processFilter({7, 12, 3}), u"process_id=7 or process_id=12 or process_id=3 "_s);
}
