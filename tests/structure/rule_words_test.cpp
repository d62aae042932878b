#include "structure/rules/advice.h"
#include "structure/rules/sentence.h"
#include "tests/run/rule_text.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// "name | rest" a line; a backslash at the end carries on in the next one.
QList<QStringList> casesOf(const char* table) {
    QList<QStringList> cases;
    for (const QString& line : QString::fromUtf8(table).remove(u"\\\n"_s).split(u'\n', Qt::SkipEmptyParts))
        cases << line.simplified().split(u" | "_s);
    return cases;
}

QString nameOf(int source, int id) {
    if (source == run::sourceComponent)
        return id == 10 ? u"Gaji Pokok"_s : QString();
    return source == run::sourceFigure && id == 4 ? u"Jumlah Hadir"_s : id == 13 ? u"Lembur"_s : QString();
}

const char* const doubts[] = {"own",  "no-param", "no-rule", "later",    "unread",  "reversed",
                              "open", "empty",    "never",   "replaced", "division"};

/// "later Komponen 30" for each advice.
QString adviceText(const std::vector<structure::Advice>& all) {
    QStringList texts;
    for (const structure::Advice& advice : all)
        texts << (QString::fromLatin1(doubts[int(advice.doubt)]) + u' ' + advice.name).trimmed();
    return texts.join(u", "_s);
}

/// Components 10, 20, 30 in this order, of which 20 alone is closed to rules; 40 is a deduction before them by number.
structure::GroupRules groupOf(const QString& rules) {
    structure::GroupRules group;
    for (const QString& text : rules.split(u"; "_s))
        group.rules.push_back(ruleOf(text));
    group.catalogue = {{10, {u"K10"_s, 0, 10, run::flagOn}},
                       {20, {u"K20"_s, 0, 20, 0}},
                       {30, {u"K30"_s, 0, 30, run::flagOn}},
                       {40, {u"K40"_s, 1, 5, run::flagOn}}};
    group.figures = {4, 13, 17};
    return group;
}

} // namespace

TEST(Sentence, SaysWhatARuleDoes) {
    const structure::SentenceWords words = structure::SentenceWords::indonesian();
    for (const QStringList& cells : casesOf(R"(
if=f4 min=20 max=31 sum=k10 op=* konst=0.02 | Jika Jumlah Hadir antara 20 dan 31: Gaji Pokok x 0,02, per periode, menambah
uang=1500000.5 jenis=1 | uang 1.500.000,5, per periode, menambah
if=f4 uang=50000 hitung=1 jenis=2 | Jika Jumlah Hadir sama dengan 0: uang 50.000, per hari, menggantikan
if=f13 min=1 sum=f13 op=* konst=2 op2=* uang=20000 | \
Jika Lembur mulai 1: (Lembur di atas 1) x 2 x uang 20.000, per periode, menambah
if=f13 min=1 max=3 sum=f13 op2=* uang=9 | \
Jika Lembur antara 1 dan 3: (Lembur di atas 1 sampai 3) x uang 9, per periode, menambah
if=f13 max=3 sum=f13 op=- konst=0.5 op2=* uang=9 | \
Jika Lembur antara 0 dan 3: ((Lembur sampai 3) - 0,5) x uang 9, per periode, menambah
if=f13 min=1 max=3 sum=f4 op=/ konst=2 op2=- uang=9 | \
Jika Lembur antara 1 dan 3: Jumlah Hadir / 2 - uang 9, per periode, menambah
if=f13 min=-1 max=-1 sum=f13 | Jika Lembur lebih dari 0: Lembur, per periode, menambah
if=f13 sum=f13 op2=* uang=9 | Jika Lembur sama dengan 0: 0 x uang 9, per periode, menambah
if=k7 min=5 uang=1 | Jika (belum dipilih) mulai 5: uang 1, per periode, menambah
use_sum=2 uang=7 | 0, per periode, menambah)"))
        EXPECT_EQ(structure::sentence(ruleOf(cells[0]), nameOf, words).toStdString(), cells[1].toStdString());
}

TEST(Advice, TellsWhatARuleCannotDo) {
    // The rules, then the place of the one that is asked about.
    for (const QStringList& cells : casesOf(R"(
com=10 if=f4 min=1 max=5 sum=f13 op=* konst=2; com=30 sum=k10 | 1 |
com=30 if=k30 min=1 max=5 sum=k30 | 0 | own K30
com=10 sum=k30; com=30 uang=1 | 0 | later K30
com=30 sum=k40; com=40 uang=1 | 0 | later K40
com=40 sum=k30; com=30 uang=1 | 0 |
com=30 sum=k20; com=20 uang=1 | 0 | no-param K20
com=30 sum=k10 | 0 | no-rule K10
com=30 if=f99 min=1 max=2 sum=k99 | 0 | unread
com=30 if=x0 min=1 max=2 uang=1 | 0 |
com=30 if-source=f99 sum=f13 op=/ | 0 | division
com=30 op=/ uang=1 | 0 |
com=30 if=f13 min=5 max=3 uang=1 | 0 | reversed
com=30 if=f13 min=5 uang=1 | 0 | open
com=30 if=f13 min=5 max=5 sum=f13 | 0 | empty
com=30 if=f13 min=5 max=5 uang=1 | 0 |
com=30 if=f13 min=5 max=5 sum=f13 jenis=2 | 0 |
com=30 if=f17 min=2 max=9 uang=1 | 0 | never
com=20 if=f4 min=5 max=9 uang=1; com=20 if=f4 min=5 max=30 uang=2 jenis=2 | 0 | replaced
com=20 if=f4 min=5 max=9 uang=1; com=20 if=f4 min=6 max=30 uang=2 jenis=2 | 0 |
com=20 if=f4 min=5 max=9 uang=1; com=20 if=f4 min=5 max=30 uang=2 jenis=1 | 0 |
com=20 if=f4 min=5 max=9 uang=1; com=20 if=f13 min=5 max=30 uang=2 jenis=2 | 0 |
com=20 if=f4 min=5 max=9 uang=1; com=20 if=f4 min=1 max=3 sum=f4 op=* konst=2 jenis=2 | 0 | replaced
com=20 if=f4 min=5 max=9 uang=1; com=20 if=f4 min=1 max=3 sum=f4 op=* konst=0 jenis=2 | 0 |
com=20 uang=1; com=20 uang=2 jenis=2 | 0 | replaced
com=20 uang=1; com=20 uang=0 jenis=2 | 0 |
com=30 uang=1; com=30 uang=2 jenis=2 | 0 |
com=30 uang=1; com=30 uang=2; com=30 uang=3 jenis=2 | 1 | replaced)"))
        EXPECT_EQ(adviceText(adviceOn(groupOf(cells[0]),
                                      std::size_t(cells[1].chopped(cells[1].endsWith(u'|') ? 2 : 0).toInt())))
                      .toStdString(),
                  cells.value(2).toStdString())
            << cells[0].toStdString();
}
