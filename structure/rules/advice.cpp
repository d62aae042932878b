#include "structure/rules/advice.h"

#include "run/rules/figure_numbers.h"

#include <algorithm>
#include <optional>
#include <tuple>

using run::Operator;
using run::Rule;

namespace structure {

namespace {

bool isConditional(const Rule& rule) {
    return rule.use_if_sum == run::flagOn;
}

bool hasFormula(const Rule& rule) {
    return rule.use_sum == run::flagOn;
}

bool replaces(const Rule& rule) {
    return rule.jenis != 0 && rule.jenis != 1;
}

/// Both edges 0: the rule passes for the value 0 alone, and any other band never does.
bool wantsZero(const Rule& rule) {
    return rule.min_if == 0 && rule.max_if == 0;
}

/// Whether `later` passes for every value for which `rule` does. The upper edge keeps no value from passing.
bool passesWhenever(const Rule& later, const Rule& rule) {
    if (!isConditional(later))
        return true;
    if (!isConditional(rule) || later.use_kode_if != rule.use_kode_if || later.id_kode_if != rule.id_kode_if)
        return false;
    return wantsZero(later) == wantsZero(rule) && later.min_if <= rule.min_if;
}

/// Whether the result cannot be 0 where the rule passes: a result of 0 replaces nothing.
bool yieldsAnAmount(const Rule& rule) {
    const auto keeps = [&](Operator sign, double value) {
        return sign == Operator::None || (sign == Operator::Multiply && value > 0);
    };
    if (!hasFormula(rule))
        return rule.use_sum == 0 && rule.nilai_rp > 0;
    return isConditional(rule) && !wantsZero(rule) && rule.sharesFigure() &&
           keeps(rule.operator_sum, rule.konstanta_sum) && keeps(rule.operator_sum2, rule.nilai_rp);
}

class Adviser final {
public:
    Adviser(const GroupRules& group, std::size_t place) : m_group(group), m_place(place), m_rule(group.rules[place]) {}

    [[nodiscard]] std::vector<Advice> all() {
        if (isConditional(m_rule)) {
            reference(m_rule.use_kode_if, m_rule.id_kode_if);
            band();
        }
        if (hasFormula(m_rule)) {
            reference(m_rule.use_kode_sum, m_rule.id_kode_sum);
            if (m_rule.operator_sum == Operator::Divide && m_rule.konstanta_sum == 0)
                add(Doubt::DividesByZero);
        }
        if (isAlwaysReplaced())
            add(Doubt::AlwaysReplaced);
        return m_found;
    }

private:
    void add(Doubt doubt, const QString& name = {}) {
        if (const Advice advice{doubt, name}; std::ranges::find(m_found, advice) == m_found.end())
            m_found.push_back(advice);
    }

    void reference(int source, int id) {
        if (source == run::sourceFigure && !m_group.figures.contains(id))
            add(Doubt::UnreadReference);
        if (source != run::sourceComponent)
            return;
        const auto entry = m_group.catalogue.find(id);
        if (entry == m_group.catalogue.end())
            add(Doubt::UnreadReference);
        else if (const std::optional<Doubt> doubt = doubtAbout(id, entry->second))
            add(*doubt, entry->second.com_name);
    }

    [[nodiscard]] std::optional<Doubt> doubtAbout(int com_id, const CatalogueEntry& entry) const {
        if (com_id == m_rule.com_id)
            return Doubt::OwnComponent;
        if (entry.param != run::flagOn)
            return Doubt::NoParam;
        if (std::ranges::find(m_group.rules, com_id, &Rule::com_id) == m_group.rules.end())
            return Doubt::NoRuleInGroup;
        const auto own = m_group.catalogue.find(m_rule.com_id);
        const auto turn = [](const CatalogueEntry& one) { return std::pair(one.type, one.no_urut); };
        if (own != m_group.catalogue.end() && turn(entry) > turn(own->second))
            return Doubt::ComputedLater;
        return std::nullopt;
    }

    void band() {
        const double min = m_rule.min_if, max = m_rule.max_if;
        const bool isFigure = m_rule.use_kode_if == run::sourceFigure;
        if (max == 0 && min > 0)
            add(Doubt::OpenBand);
        else if (max != 0 && min > max)
            add(Doubt::BoundsReversed);
        else if (min == max && min != 0 && hasFormula(m_rule) && m_rule.sharesFigure() && !replaces(m_rule))
            add(Doubt::EmptyBand);
        if (isFigure && m_rule.id_kode_if == run::figureHadirSeratus && min > 1)
            add(Doubt::NeverPasses);
    }

    [[nodiscard]] bool isAlwaysReplaced() const {
        bool isFirst = true;
        for (std::size_t before = 0; before < m_place; ++before)
            isFirst &= m_group.rules[before].com_id != m_rule.com_id;
        // Other rules see the result of a component's first rule, whatever comes behind it.
        const auto own = m_group.catalogue.find(m_rule.com_id);
        if (isFirst && own != m_group.catalogue.end() && own->second.param == run::flagOn)
            return false;
        return std::any_of(m_group.rules.begin() + std::ptrdiff_t(m_place) + 1, m_group.rules.end(),
                           [this](const Rule& later) {
                               return later.com_id == m_rule.com_id && replaces(later) &&
                                      passesWhenever(later, m_rule) && yieldsAnAmount(later);
                           });
    }

    const GroupRules& m_group;
    const std::size_t m_place;
    const Rule& m_rule;
    std::vector<Advice> m_found;
};

} // namespace

std::vector<Advice> adviceOn(const GroupRules& group, std::size_t place) {
    return Adviser(group, place).all();
}

} // namespace structure
