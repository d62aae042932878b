#include "base/branch.h"

using namespace Qt::StringLiterals;

namespace base {

QString Branch::condition(QStringView column) const {
    return column.toString() + u'=' + (m_cab_id_auto == 0 ? u"NULL"_s : QString::number(m_cab_id_auto));
}

QString Branch::furtherCondition(QStringView column) const {
    return m_limited ? u"and "_s + condition(column) + u' ' : QString();
}

} // namespace base
