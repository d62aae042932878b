#pragma once

#include "run/assembly.h"
#include "run/memory_lookups.h"

#include <QString>
#include <QStringList>

// A company in words, as the tables of cases write it.
//
// Rule: "com=1 if=f13 min=0 max=1 sum=f13 op=* konst=1.5 op2=* uang=20000". A source is f and a figure's number, k and
// a component's, x for neither. "if=" and "sum=" switch condition and formula on; "if-source=" only names one.
// Others: jenis, hitung, use_sum, typex, nama; "param" publishes.
// Facts: "f13=7.5" over the period, "f13=1,0,2" day by day from 1 January on, "m1=50000" the employee's own money for
// component 1, "!" in place of a value for a lookup that fails.
[[nodiscard]] run::Rule ruleOf(const QString& text);

/// Employee 7 of group 1 with the given rules and facts; the components in order of their numbers.
struct SmallCompany {
    run::Selections selections;
    run::LookupTables tables;
};
[[nodiscard]] SmallCompany smallCompany(const QStringList& rules, const QString& facts);

/// One line per row: component, amount, factor, sign, text in brackets.
[[nodiscard]] QStringList describe(const std::vector<run::Row>& rows);

/// The rows of the only line, before rounding.
[[nodiscard]] QStringList computedRows(const QStringList& rules, const QString& facts);
