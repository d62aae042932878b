#include "tests/run/rule_text.h"

#include "run/reading/figures.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using run::FigureRead;

constexpr int employee = 7;
constexpr int group = 1;

void readSource(const QString& text, int& source, int& id) {
    source = int(u"fk"_s.indexOf(text[0]));
    id = text.mid(1).toInt();
}

void readWord(const QString& key, const QString& value, run::Rule& rule) {
    const QMap<QString, int*> numbers{{u"com"_s, &rule.com_id},
                                      {u"jenis"_s, &rule.jenis},
                                      {u"hitung"_s, &rule.hitung},
                                      {u"typex"_s, &rule.typex},
                                      {u"use_sum"_s, &rule.use_sum}};
    const QMap<QString, double*> reals{{u"min"_s, &rule.min_if},
                                       {u"max"_s, &rule.max_if},
                                       {u"konst"_s, &rule.konstanta_sum},
                                       {u"uang"_s, &rule.nilai_rp}};
    if (numbers.contains(key))
        *numbers[key] = value.toInt();
    else if (reals.contains(key))
        *reals[key] = value.toDouble();
    else if (key == u"if" || key == u"if-source")
        readSource(value, rule.use_kode_if, rule.id_kode_if);
    else if (key == u"sum")
        readSource(value, rule.use_kode_sum, rule.id_kode_sum);
    else if (key == u"op")
        rule.operator_sum = run::operatorOf(value);
    else if (key == u"op2")
        rule.operator_sum2 = run::operatorOf(value);
    else if (key == u"nama")
        rule.com_name = value;
    else if (key == u"param")
        rule.param = run::flagOn;
    else
        throw std::runtime_error("No such word in a rule: " + key.toStdString());
}

void addFigure(SmallCompany& company, int id, const QStringList& values) {
    const auto grain = values.size() > 1 ? FigureRead::Grain::Day : FigureRead::Grain::Period;
    run::FigureValues read;
    for (const QString& value : values)
        read.push_back(value.toDouble());
    company.tables.figures[{id, grain, FigureRead::Form::AsSet}] =
        values.front() == u"!" ? run::Reading<run::FigureValues>(std::make_exception_ptr(std::runtime_error("lost")))
                               : run::Reading(read);
    if (grain == FigureRead::Grain::Day)
        company.selections.period.tanggal_akhir = company.selections.period.tanggal_awal.addDays(values.size() - 1);
}

void addFacts(SmallCompany& company, const QString& facts) {
    run::MoneyByEmployee money;
    for (const QString& fact : facts.split(u' ', Qt::SkipEmptyParts)) {
        const int id = fact.mid(1, fact.indexOf(u'=') - 1).toInt();
        const QString value = fact.mid(fact.indexOf(u'=') + 1);
        if (fact[0] == u'f')
            addFigure(company, id, value.split(u','));
        else
            money.insert({employee, {group, id}}, value.toDouble());
    }
    company.tables.money = run::Reading(money);
}

} // namespace

run::Rule ruleOf(const QString& text) {
    run::Rule rule;
    rule.com_id = 1;
    rule.grp_id = group;
    rule.use_kode_if = -1;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        const QString key = word.section(u'=', 0, 0);
        readWord(key, word.section(u'=', 1), rule);
        if (key == u"if")
            rule.use_if_sum = run::flagOn;
        else if (key == u"sum")
            rule.use_sum = run::flagOn;
    }
    rule.com_kode = u"K%1"_s.arg(rule.com_id);
    if (rule.com_name.isEmpty())
        rule.com_name = u"Komponen %1"_s.arg(rule.com_id);
    return rule;
}

SmallCompany smallCompany(const QString& rules, const QString& facts) {
    SmallCompany company;
    const QDate first(2024, 1, 1);
    company.selections.period = {first, first.addDays(30)};
    company.selections.groups = {group};
    run::RulesByComponent byComponent;
    QHash<int, QString> names;
    for (const QString& text : rules.split(u"; "_s)) {
        const run::Rule rule = ruleOf(text);
        if (!byComponent.contains({group, rule.com_id}))
            company.selections.components.push_back({.com_id = rule.com_id, .no_urut = rule.com_id});
        byComponent[{group, rule.com_id}].push_back(rule);
        if (rule.param == run::flagOn)
            names.insert(rule.com_id, rule.com_name);
    }
    const run::Employee one{employee, u"0007"_s, u"N7"_s, u"Sri Wahyuni"_s};
    company.tables.members[group] = run::Reading(std::vector{one});
    company.tables.places.insert(employee, 0);
    company.tables.rules = run::Reading(byComponent);
    company.tables.memberships = run::Reading(run::Memberships{{group, employee}});
    company.tables.referenceNames = run::Reading(names);
    addFacts(company, facts);
    return company;
}

run::Run SmallCompany::computed(run::Notice expected) const {
    run::MemoryLookups lookups(selections.period, tables);
    run::Run made;
    EXPECT_EQ(proses(made, selections, lookups), expected);
    return made;
}

QString describe(const std::vector<run::Row>& rows) {
    const auto number = [](double value) { return QString::number(value, 'f', QLocale::FloatingPointShortest); };
    QStringList lines;
    for (const run::Row& row : rows)
        lines << u"%1: %2 x %3 %4 [%5]"_s.arg(row.com_id)
                     .arg(number(row.subtot_payroll), number(row.jml_faktor), row.jenis(), row.kondisi);
    return lines.join(u"; "_s);
}
