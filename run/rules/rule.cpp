#include "run/rules/rule.h"

namespace run {

Operator operatorOf(const QString& text) {
    if (text.size() != 1)
        return Operator::None;
    switch (text[0].unicode()) {
    case u'*':
        return Operator::Multiply;
    case u'/':
        return Operator::Divide;
    case u'-':
        return Operator::Subtract;
    case u'+':
        return Operator::Add;
    default:
        return Operator::None;
    }
}

} // namespace run
