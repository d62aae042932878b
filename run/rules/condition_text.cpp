#include "run/rules/condition_text.h"

#include "toolkit/text/number_text.h"

#include <array>
#include <charconv>

namespace run {

namespace {

/// The C form "%.15g", whatever the locale.
QString generalText(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::general, 15);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

} // namespace

void ConditionText::setConstant(double constant) {
    m_constant = constant;
    m_hasConstant = true;
    m_moneyParts = 0;
}

void ConditionText::addMoney(Operator sign, Money money) {
    m_sign = sign;
    m_money = money;
    ++m_moneyParts;
}

QString ConditionText::text() const {
    QString text = m_hasConstant ? NormalizeDecimal(generalText(m_constant)) : QString();
    for (int part = 0; part < m_moneyParts; ++part) {
        if (!text.isEmpty())
            text += u' ';
        text += QLatin1Char(char(m_sign)) + (u' ' + moneyText(m_money));
    }
    return text;
}

} // namespace run
