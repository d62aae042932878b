#pragma once

#include "run/rules/rule.h"

#include <map>
#include <set>
#include <vector>

namespace structure {

/// What the catalogue says of a component, as far as rules that refer to it are concerned.
struct CatalogueEntry {
    QString com_name;
    int type = 0;
    int no_urut = 0;
    int param = 0; ///< -1: rules may refer to it
};

/// The rules of one group in their order, and what they may refer to.
struct GroupRules {
    std::vector<run::Rule> rules;
    std::map<int, CatalogueEntry> catalogue; ///< by com_id
    std::set<int> figures;                   ///< numbers of the attendance figures
};

/// Why a rule cannot do what it seems to.
enum class Doubt {
    OwnComponent,    ///< what it refers to is the component that it is about to compute
    NoParam,         ///< the component may not be referred to
    NoRuleInGroup,   ///< nothing computes the component in this group
    ComputedLater,   ///< the run computes the component after this one
    UnreadReference, ///< the number belongs to neither a figure nor a component of the source chosen
    BoundsReversed,
    OpenBand,       ///< upper edge 0 over a higher lower one: no upper edge, which the editor refuses
    EmptyBand,      ///< the formula works on a band without width
    NeverPasses,    ///< full attendance is 0 or 1, the band begins above
    AlwaysReplaced, ///< a later rule of the component takes its place whenever it passes
    DividesByZero
};

struct Advice {
    Doubt doubt;
    QString name; ///< of the component referred to, empty where none is

    friend bool operator==(const Advice&, const Advice&) = default;
};

/// What is doubtful about the rule at that place; nothing of it keeps anybody from storing the rule.
[[nodiscard]] std::vector<Advice> adviceOn(const GroupRules& group, std::size_t place);

} // namespace structure
