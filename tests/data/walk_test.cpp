#include "tests/data/listing.h"
#include "toolkit/data/clear_data_set.h"
#include "toolkit/data/drop_fault.h"
#include "toolkit/data/fault.h"
#include "toolkit/data/mem_table.h"

namespace {

using namespace Qt::StringLiterals;

/// Three records 1, 2, 3 and a log of every event with the value it saw.
class Walk : public testing::Test {
protected:
    Walk() : set(integerFields({u"no"_s})) {
        set.open();
        for (const int no : {1, 2, 3})
            add(set, {no});
        set.first();
        data::Events& events = set.events;
        events.newRecord = note("new");
        events.beforePost = note("beforePost");
        events.afterPost = note("afterPost");
        events.beforeCancel = note("beforeCancel");
        events.afterCancel = note("afterCancel");
        events.beforeDelete = note("beforeDelete");
        events.afterDelete = note("afterDelete");
        events.beforeScroll = note("beforeScroll");
        events.afterScroll = note("afterScroll");
    }

    data::Events::Handler note(const char* name) {
        return [this, name] { log += name + std::string(":") + set.text(u"no").toStdString() + ' '; };
    }
    std::string logged() { return std::exchange(log, {}); }

    data::MemTable set;
    std::string log;
};

} // namespace

TEST_F(Walk, StepsBeyondAnEndStayAndTellSo) {
    std::string seen;
    const auto see = [&](int moved) {
        seen += std::to_string(moved) + '@' + set.text(u"no").toStdString() + (set.isBof() ? "b" : "") +
                (set.isEof() ? "e" : "") + ' ';
    };
    for (const int step : {-1, 1, 1, 1, 1, -1, -5, -1, 7, 0})
        see(set.moveBy(step));
    EXPECT_EQ(seen, "0@1b 1@2 1@3 0@3e 0@3e -1@2 -1@1b 0@1b 2@3e 0@3e ");
    set.first();
    see(0);
    set.last();
    see(0);
    set.goToRow(1);
    see(0);
    EXPECT_EQ(seen.substr(seen.size() - 15), " 0@1b 0@3e 0@2 ");
}

TEST_F(Walk, EmptySetIsAtBothEndsAndReadsAsNull) {
    ClearDataSet(set);
    EXPECT_TRUE(set.isBof() && set.isEof() && set.isEmpty());
    EXPECT_EQ(set.text(u"no"), QString());
    EXPECT_EQ(set.integer(u"no"), 0);
    EXPECT_TRUE(set.isNull(u"no"));
    EXPECT_THROW(set.remove(), data::Fault);
}

TEST_F(Walk, EventsComeInOrderAndSeeTheRecordOfTheirMoment) {
    struct Case {
        const char* name;
        std::function<void()> act;
        const char* events;
        const char* after;
    };
    const Case cases[] = {
        {"step", [&] { set.next(); }, "beforeScroll:1 afterScroll:2 ", "1 | [2] | 3"},
        {"edit and post",
         [&] {
             set.editValue(u"no", 20);
             set.post();
         },
         "beforePost:20 afterPost:20 ", "1 | [20] | 3"},
        {"edit and cancel",
         [&] {
             set.editValue(u"no", 21);
             set.cancel();
         },
         "beforeCancel:21 afterCancel:20 ", "1 | [20] | 3"},
        {"append", [&] { set.append(); }, "beforeScroll:20 new: afterScroll: ", "1 | 20 | 3 | [NULL]"},
        {"untouched append is cancelled by a move", [&] { set.first(); },
         "beforeCancel: beforeScroll: afterCancel:3 afterScroll:3 beforeScroll:3 afterScroll:1 ", "[1] | 20 | 3"},
        {"filled append is posted by a move",
         [&] {
             set.append();
             set.setValue(u"no", 4);
             set.prior();
         },
         "beforeScroll:1 new: afterScroll: beforePost:4 afterPost:4 beforeScroll:4 afterScroll:3 ", "1 | 20 | [3] | 4"},
        {"delete", [&] { set.remove(); }, "beforeDelete:3 beforeScroll:3 afterDelete:4 afterScroll:4 ", "1 | 20 | [4]"},
        {"delete of the last one", [&] { set.remove(); },
         "beforeDelete:4 beforeScroll:4 afterDelete:20 afterScroll:20 ", "1 | [20]"},
        {"delete while inserting cancels",
         [&] {
             set.append();
             set.remove();
         },
         "beforeScroll:20 new: afterScroll: beforeCancel: beforeScroll: afterCancel:20 afterScroll:20 ", "1 | [20]"},
    };
    for (const Case& one : cases) {
        logged();
        one.act();
        EXPECT_EQ(logged(), one.events) << one.name;
        EXPECT_EQ(listing(set), one.after) << one.name;
        logged();
    }
}

TEST_F(Walk, DefaultsOfANewRecordDoNotMakeItWorthKeeping) {
    set.events.newRecord = [this] { set.setValue(u"no", 9); };
    set.append();
    EXPECT_EQ(listing(set), "1 | 2 | 3 | [9]");
    set.settle();
    EXPECT_EQ(listing(set), "1 | 2 | [3]");
    set.append();
    set.post();
    EXPECT_EQ(listing(set), "1 | 2 | 3 | [9]");
}

TEST_F(Walk, EditOfAnEmptySetAppends) {
    ClearDataSet(set);
    set.edit();
    EXPECT_EQ(set.state(), data::State::Insert);
    EXPECT_EQ(set.recordCount(), 0);
    EXPECT_FALSE(set.isEmpty());
    set.first();
    EXPECT_TRUE(set.isEmpty());
}

TEST_F(Walk, DeletingWhileSteppingSkipsTheRecordThatMovesUp) {
    for (set.first(); !set.isEof(); set.next())
        set.remove();
    EXPECT_EQ(listing(set), "[2]");
}

TEST_F(Walk, SteppingBackOverDeletedRecordsMeetsAll) {
    add(set, {4});
    logged();
    std::string met;
    for (set.last(); !set.isBof();) {
        met += set.text(u"no").toStdString();
        if (set.integer(u"no") % 2 == 0)
            set.remove();
        else
            set.prior();
    }
    EXPECT_EQ(met, "43231") << "the record behind a deleted one becomes current, so 3 comes twice";
    EXPECT_EQ(listing(set), "[1] | 3");
}

TEST_F(Walk, FailingHandlersLeaveTheSetUsable) {
    set.events.newRecord = [] { throw data::Fault(u"no number"_s); };
    EXPECT_FALSE(data::dropFault("append", [this] { set.append(); }));
    EXPECT_EQ(set.state(), data::State::Browse);
    set.events.beforePost = [] { throw data::Fault(u"refused"_s); };
    set.editValue(u"no", 8);
    EXPECT_THROW(set.next(), data::Fault);
    EXPECT_EQ(set.state(), data::State::Edit);
    set.cancel();
    set.events.beforeDelete = [] { throw data::Fault(u"refused"_s); };
    EXPECT_THROW(set.remove(), data::Fault);
    EXPECT_EQ(listing(set), "1 | 2 | [3]");
}

TEST_F(Walk, WrongUseIsAFault) {
    EXPECT_THROW(set.setValue(u"no", 1), data::Fault);
    EXPECT_THROW((void)set.value(u"none"), data::Fault);
    set.setReadOnly(true);
    EXPECT_THROW(set.append(), data::Fault);
    EXPECT_THROW(set.edit(), data::Fault);
    EXPECT_THROW(set.remove(), data::Fault);
    set.setReadOnly(false);
    set.close();
    EXPECT_THROW(set.first(), data::Fault);
    EXPECT_THROW(set.append(), data::Fault);
}

// A master with lines that own rows, numbered by counters as an entry screen keeps them.
TEST(MasterDetail, UnusedAppendedRowsVanishAndCountersFollow) {
    data::MemTable lines(integerFields({u"line"_s, u"paid"_s}));
    data::MemTable rows(integerFields({u"line"_s, u"row"_s}));
    int lineCounter = 0;
    int rowCounter = 0;
    const auto refilter = [&] { rows.setFilter(u"line"_s, lines.isNull(u"paid") ? 0 : lines.integer(u"line")); };
    const auto takeBack = [](const data::DataSet& set, int& counter) {
        if (set.state() == data::State::Insert)
            --counter;
    };
    lines.events.newRecord = [&] { lines.setValue(u"line", ++lineCounter); };
    lines.events.beforeCancel = [&] { takeBack(lines, lineCounter); };
    lines.events.beforeDelete = [&] {
        for (rows.last(); rows.recordCount() > 0;)
            rows.remove();
        if (lines.integer(u"line") == lineCounter)
            --lineCounter;
    };
    lines.events.afterPost = lines.events.afterScroll = lines.events.afterCancel = refilter;
    rows.events.newRecord = [&] {
        rows.setValue(u"row", ++rowCounter);
        rows.setValue(u"line", lines.value(u"line"));
    };
    rows.events.beforeCancel = [&] { takeBack(rows, rowCounter); };
    rows.events.beforeDelete = [&] { rowCounter -= rows.integer(u"row") == rowCounter ? 1 : 0; };
    lines.open();
    rows.open();
    lines.append();
    rows.append();
    EXPECT_EQ(std::pair(lineCounter, rowCounter), std::pair(1, 1));
    lines.first();
    EXPECT_EQ(std::pair(lineCounter, rowCounter), std::pair(0, 0));
    EXPECT_TRUE(lines.isEmpty() && rows.isEmpty());
    for (const int paid : {10, 20}) {
        lines.append();
        lines.setValue(u"paid", paid);
        lines.post();
        for (int i = 0; i < 2; ++i) {
            rows.append();
            rows.post();
        }
    }
    EXPECT_EQ(listing(lines), "1 10 | [2 20]");
    EXPECT_EQ(listing(rows), "2 3 | [2 4]");
    lines.remove();
    EXPECT_EQ(listing(rows), "[1 1] | 1 2");
    EXPECT_EQ(std::pair(lineCounter, rowCounter), std::pair(1, 2));
}
