#include "toolkit/db/fault.h"
#include "toolkit/fault/drop_fault.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// What the program writes while the action fails inside a guard under the logging rules.
static std::string loggedUnder(const QString& rules, const std::function<void()>& action) {
    QLoggingCategory::setFilterRules(rules);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(fault::dropFault("delete of a run", action));
    QLoggingCategory::setFilterRules({});
    return testing::internal::GetCapturedStderr();
}

TEST(DroppedFaults, AreSilentUnlessSomebodyListens) {
    const auto refused = [] { throw db::Fault(1146, u"42S02"_s, u"no such table"_s, u"DELETE FROM x"_s); };
    const auto failed = [] { throw std::range_error("too far"); };
    EXPECT_EQ(loggedUnder({}, refused), "");
    EXPECT_EQ(loggedUnder(u"orvane.fault=true"_s, refused),
              "orvane.fault: delete of a run | no such table | 1146 42S02 | DELETE FROM x\n");
    EXPECT_EQ(loggedUnder(u"orvane.fault=true"_s, failed), "orvane.fault: delete of a run | too far\n");
}

TEST(DroppedFaults, AreToldToTheYoungestListenerAndToWhoeverAsks) {
    std::string told;
    const auto listener = [&told](const char* name) {
        return [&told, name](const char* what, const std::exception& fault) {
            told += std::string(name) + ':' + what + '-' + fault.what() + ' ';
        };
    };
    const auto failing = [] { throw std::range_error("far"); };
    const fault::DropListening older(listener("older"));
    {
        const fault::DropListening younger(listener("younger"));
        EXPECT_FALSE(fault::dropFault("a", failing, listener("caller")));
    }
    EXPECT_TRUE(fault::dropFault(
        "b", [] {}, listener("caller")));
    EXPECT_FALSE(fault::dropFault("c", failing));
    EXPECT_EQ(told, "younger:a-far caller:a-far older:c-far ");
}
