#pragma once

#include "run/reading/memory_lookups.h"
#include "run/rules/assembly.h"

#include <QString>

// A company in words, as the tables of cases write it.
//
// Rule: "com=2 if=f13 min=0 max=1 sum=f13 op=* konst=1.5 op2=* uang=20000", of component 1 where "com=" is missing;
// rules are parted by "; ". A source is f and a figure's number, k and a component's, x for neither. "if=" and "sum="
// switch condition and formula on; "if-source=" only names one. Others: jenis, hitung, use_sum, typex, nama; "param"
// publishes.
// Facts: "f13=7.5" over the period, "f13=1,0,2" day by day from 1 January on, "m1=50000" the employee's own money for
// component 1, "!" in place of a value for a lookup that fails.
[[nodiscard]] run::Rule ruleOf(const QString& text);

/// Employee 7 of group 1 with the given rules and facts; the components in order of their numbers.
struct SmallCompany {
    run::Selections selections;
    run::LookupTables tables;

    /// Its run before rounding.
    [[nodiscard]] run::Run computed(run::Notice expected = run::Notice::None) const;
};
[[nodiscard]] SmallCompany smallCompany(const QString& rules, const QString& facts = {});

/// Component, amount, factor, sign and text in brackets of each row, parted by "; ".
[[nodiscard]] QString describe(const std::vector<run::Row>& rows);
