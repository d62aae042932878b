#pragma once

#include "run/rules/rule.h"

#include <functional>

namespace structure {

/// What a rule's parameter is called: the name of the figure or component with that number, empty where there is none.
using ParameterName = std::function<QString(int source, int id)>;

/// The words that a sentence is put together from, in the language of the program. %1 and so on are filled in.
struct SentenceWords {
    QString jika;           ///< %1: the condition, %2: the amount
    QString antara;         ///< %1: a name, %2 and %3: the edges of a band
    QString mulai;          ///< %2: the lower edge
    QString lebih_dari_0;   ///< a band from 0 on
    QString sama_dengan_0;  ///< both edges 0
    QString sampai;         ///< the part of a value up to %2
    QString di_atas;        ///< the part above %2
    QString di_atas_sampai; ///< the part above %2, up to %3
    QString uang;           ///< %1: an amount of money
    QString belum_dipilih;  ///< in place of a name
    QString per_periode;
    QString per_hari;
    QString menambah;
    QString menggantikan;

    [[nodiscard]] static SentenceWords indonesian();
};

/// What the rule does: whom it concerns, what it computes, over what, and how that joins the rules before it.
[[nodiscard]] QString sentence(const run::Rule& rule, const ParameterName& nameOf, const SentenceWords& words);

} // namespace structure
