#include "toolkit/data/drop_fault.h"
#include "toolkit/db/fault.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

QStringList heard;

void hear(QtMsgType, const QMessageLogContext& context, const QString& message) {
    heard << QString::fromLatin1(context.category) + u": "_s + message;
}

/// What is logged while the action runs inside a guard under the logging rules.
QStringList loggedUnder(const QString& rules, const std::function<void()>& action) {
    heard.clear();
    QLoggingCategory::setFilterRules(rules);
    const QtMessageHandler previous = qInstallMessageHandler(hear);
    EXPECT_FALSE(data::dropFault("delete of a run", action));
    qInstallMessageHandler(previous);
    QLoggingCategory::setFilterRules({});
    return heard;
}

} // namespace

TEST(DroppedFaults, AreSilentUnlessSomebodyListens) {
    const auto refused = [] { throw db::Fault(1146, u"42S02"_s, u"no such table"_s, u"DELETE FROM x"_s); };
    const auto failed = [] { throw std::range_error("too far"); };
    EXPECT_EQ(loggedUnder({}, refused), QStringList());
    EXPECT_EQ(loggedUnder(u"orvane.fault=true"_s, refused),
              QStringList(u"orvane.fault: delete of a run | 1146 no such table | DELETE FROM x"_s));
    EXPECT_EQ(loggedUnder(u"orvane.fault=true"_s, failed), QStringList(u"orvane.fault: delete of a run | too far"_s));
    EXPECT_TRUE(data::dropFault("nothing", [] {}));
}
