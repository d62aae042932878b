#include "run/rules/run.h"

using namespace Qt::StringLiterals;

namespace run {

QString Row::jenis() const {
    return type == 0 ? u"(+)"_s : u"(-)"_s;
}

} // namespace run
