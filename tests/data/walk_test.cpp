#include "tests/data/listing.h"
#include "toolkit/data/clear_data_set.h"
#include "toolkit/data/fault.h"
#include "toolkit/data/mem_table.h"
#include "toolkit/fault/drop_fault.h"

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
        const std::pair<const char*, data::Events::Handler*> handlers[] = {
            {"new", &set.events.newRecord},
            {"afterPost", &set.events.afterPost},
            {"beforeCancel", &set.events.beforeCancel},
            {"afterCancel", &set.events.afterCancel},
            {"beforeDelete", &set.events.beforeDelete},
            {"afterScroll", &set.events.afterScroll},
        };
        for (const auto& [name, handler] : handlers)
            *handler = [this, name = std::string(name)] { log += name + ':' + set.text(u"no").toStdString() + ' '; };
    }

    std::string logged() { return std::exchange(log, {}); }

    data::MemTable set;
    std::string log;
};

} // namespace

TEST_F(Walk, AStepBeyondTheLastRecordStaysThereAndTellsSo) {
    std::string seen;
    for (int step = 0; step < 5; ++step, set.next())
        seen += set.text(u"no").toStdString() + (set.isEof() ? "e " : " ");
    EXPECT_EQ(seen, "1 2 3 3e 3e ");
    set.first();
    EXPECT_FALSE(set.isEof());
}

TEST_F(Walk, EmptySetIsAtBothEndsReadsAsNullAndAppendsWhatIsEdited) {
    ClearDataSet(set);
    EXPECT_TRUE(set.isEof() && set.isEmpty() && set.isNull(u"no"));
    EXPECT_EQ(set.integer(u"no"), 0);
    EXPECT_THROW(set.remove(), data::Fault);
    set.edit();
    EXPECT_EQ(set.state(), data::State::Insert);
    EXPECT_EQ(listing(set), "[NULL]");
    set.first();
    EXPECT_EQ(listing(set), "");
}

TEST_F(Walk, EventsComeInOrderAndSeeTheRecordOfTheirMoment) {
    using data::DataSet;
    const QHash<QString, void (DataSet::*)()> acts{{u"first"_s, &DataSet::first},   {u"next"_s, &DataSet::next},
                                                   {u"post"_s, &DataSet::post},     {u"edit"_s, &DataSet::edit},
                                                   {u"append"_s, &DataSet::append}, {u"remove"_s, &DataSet::remove}};
    const struct {
        const char* acts; ///< one after the other; a number is put into the record
        const char* events;
        const char* after;
    } cases[] = {
        {"next", "afterScroll:2 ", "1 | [2] | 3"},
        {"20 post", "afterPost:20 ", "1 | [20] | 3"},
        {"append", "new: afterScroll: ", "1 | 20 | 3 | [NULL]"},
        // A move cancels what nobody filled in or changed, and posts the rest.
        {"first", "beforeCancel: afterCancel:3 afterScroll:3 afterScroll:1 ", "[1] | 20 | 3"},
        {"edit next", "beforeCancel:1 afterCancel:1 afterScroll:20 ", "1 | [20] | 3"},
        {"append 4 first", "new: afterScroll: afterPost:4 afterScroll:1 ", "[1] | 20 | 3 | 4"},
        {"remove", "beforeDelete:1 afterScroll:20 ", "[20] | 3 | 4"},
        {"append remove", "new: afterScroll: beforeCancel: afterCancel:4 afterScroll:4 ", "20 | 3 | [4]"},
        {"remove", "beforeDelete:4 afterScroll:3 ", "20 | [3]"},
    };
    for (const auto& one : cases) {
        logged();
        for (const QString& word : QString::fromLatin1(one.acts).split(u' '))
            if (const auto act = acts.value(word))
                (set.*act)();
            else
                set.editValue(u"no", word);
        EXPECT_EQ(logged(), one.events) << one.acts;
        EXPECT_EQ(listing(set), one.after) << one.acts;
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

TEST_F(Walk, FailingHandlersLeaveTheSetUsable) {
    set.events.newRecord = [] { throw data::Fault(u"no number"_s); };
    EXPECT_FALSE(fault::dropFault("append", [this] { set.append(); }));
    EXPECT_EQ(set.state(), data::State::Browse);
    set.events.beforeDelete = [] { throw data::Fault(u"refused"_s); };
    EXPECT_THROW(set.remove(), data::Fault);
    EXPECT_EQ(listing(set), "1 | 2 | [3]");
}

TEST_F(Walk, WrongUseIsAFault) {
    EXPECT_THROW(set.setValue(u"no", 1), data::Fault);
    EXPECT_THROW((void)set.value(u"none"), data::Fault);
    const auto append = &data::DataSet::append, edit = &data::DataSet::edit, remove = &data::DataSet::remove;
    set.setReadOnly(true);
    for (const auto refused : {append, edit, remove})
        EXPECT_THROW((set.*refused)(), data::Fault);
    set.setReadOnly(false);
    set.close();
    for (const auto refused : {append, edit, remove, &data::DataSet::first})
        EXPECT_THROW((set.*refused)(), data::Fault);
}
