#pragma once

#include "run/rules/rule.h"
#include "toolkit/text/money.h"

#include <QString>

namespace run {

/// The display text of a rule's result, such as "1.5 * 20.000", kept as what it is made of: a day of a per-day
/// component yields one, and only one of them is ever shown.
class ConditionText final {
public:
    /// Starts over with the formula's constant.
    void setConstant(double constant);
    /// Appends an operator and a money value.
    void addMoney(Operator sign, Money money);

    [[nodiscard]] bool isEmpty() const { return !m_hasConstant && m_moneyParts == 0; }
    [[nodiscard]] QString text() const;

private:
    double m_constant = 0;
    bool m_hasConstant = false;
    Operator m_sign = Operator::None;
    Money m_money;
    int m_moneyParts = 0; ///< a second evaluation of one rule may add the same part again
};

} // namespace run
