#include "tests/data/listing.h"
#include "toolkit/data/fault.h"
#include "toolkit/data/mem_table.h"

namespace {

using namespace Qt::StringLiterals;
using data::FieldType;

class Find : public testing::Test {
protected:
    Find() : set({{.name = u"line"_s, .type = FieldType::Integer}, {.name = u"code"_s}}) {
        set.open();
        for (const QVariantList& values :
             {QVariantList{1, u"Pokok"_s}, {2, u"pokok"_s}, {1, u"Makan"_s}, {2, u"Makan"_s}, {1, {}}})
            add(set, values);
        set.first();
    }

    data::MemTable set;
};

} // namespace

TEST_F(Find, FilterShowsOneValueAndFollowsEveryChange) {
    set.setFilter(u"LINE"_s, u"1"_s);
    EXPECT_EQ(listing(set), "[1 Pokok] | 1 Makan | 1 NULL");
    set.goToRow(1);
    set.editValue(u"line", 2);
    set.post();
    EXPECT_EQ(listing(set), "1 Pokok | [1 NULL]");
    add(set, {2, u"Lain"_s});
    EXPECT_EQ(listing(set), "1 Pokok | [1 NULL]") << "a record of another line is stored but not shown";
    set.reopen();
    add(set, {1, u"Baru"_s});
    add(set, {2, u"Lain"_s});
    EXPECT_EQ(listing(set), "[1 Baru]");
    set.setFilter(u"line"_s, QVariant());
    EXPECT_TRUE(set.isEmpty());
    set.clearFilter();
    EXPECT_EQ(listing(set), "[1 Baru] | 2 Lain");
    EXPECT_THROW(set.setFilter(u"none"_s, 1), data::Fault);
}

TEST_F(Find, LocateTakesTheFirstShownMatch) {
    const struct {
        data::Matches matches;
        Qt::CaseSensitivity sensitivity;
        int all;
        int underFilter2;
    } cases[] = {
        {{{u"code", u"pokok"_s}}, Qt::CaseSensitive, 1, 0},
        {{{u"code", u"POKOK"_s}}, Qt::CaseInsensitive, 0, 0},
        {{{u"code", u"POKOK"_s}}, Qt::CaseSensitive, -1, -1},
        {{{u"line", 2}, {u"code", u"Makan"_s}}, Qt::CaseSensitive, 3, 1},
        {{{u"code", u"makan"_s}, {u"line", u"1"_s}}, Qt::CaseInsensitive, 2, -1},
        {{{u"code", QVariant()}}, Qt::CaseSensitive, 4, -1},
        {{{u"code", u""_s}}, Qt::CaseSensitive, -1, -1},
        {{{u"line", 3}}, Qt::CaseSensitive, -1, -1},
    };
    for (const auto& one : cases)
        EXPECT_EQ(set.rowOf(one.matches, one.sensitivity), one.all);
    set.setFilter(u"line"_s, 2);
    for (const auto& one : cases)
        EXPECT_EQ(set.rowOf(one.matches, one.sensitivity), one.underFilter2);
    EXPECT_FALSE(set.locate({{u"code", u"Pokok"_s}}));
    EXPECT_EQ(listing(set), "[2 pokok] | 2 Makan");
    EXPECT_TRUE(set.locate({{u"code", u"Makan"_s}}));
    EXPECT_EQ(listing(set), "2 pokok | [2 Makan]");
    EXPECT_THROW((void)set.locate({{u"line", u"satu"_s}}), data::Fault);
    add(set, {1, u"pokok"_s});
    set.setFilter(u"code"_s, u"pokok"_s);
    EXPECT_EQ(set.rowOf({{u"line", 1}}, Qt::CaseInsensitive), 1) << "the filter minds the case, whatever a search does";
}

TEST_F(Find, OrderHoldsThroughPostsAndKeepsTheRecordCurrent) {
    set.setOrder({u"line"_s, u"code"_s});
    EXPECT_EQ(listing(set), "1 NULL | 1 Makan | [1 Pokok] | 2 Makan | 2 pokok");
    set.editValue(u"line", 1001);
    set.post();
    EXPECT_EQ(listing(set), "1 NULL | 1 Makan | 2 Makan | 2 pokok | [1001 Pokok]");
    add(set, {0, u"Awal"_s});
    EXPECT_EQ(listing(set), "[0 Awal] | 1 NULL | 1 Makan | 2 Makan | 2 pokok | 1001 Pokok");
    EXPECT_EQ(set.rowOf({{u"code", u"makan"_s}}, Qt::CaseInsensitive), 2);
    set.setOrder({});
    EXPECT_EQ(listing(set), "1001 Pokok | 2 pokok | 1 Makan | 2 Makan | 1 NULL | [0 Awal]");
}

TEST_F(Find, BookmarksFindTheirRecordUntilItIsGone) {
    set.goToRow(3);
    const data::RowId mark = set.bookmark().value();
    set.goToRow(0);
    set.remove();
    EXPECT_TRUE(set.goToBookmark(mark));
    EXPECT_EQ(set.row(), 2);
    set.setFilter(u"line"_s, 1);
    EXPECT_FALSE(set.goToBookmark(mark));
    set.clearFilter();
    ASSERT_TRUE(set.goToBookmark(mark));
    set.remove();
    EXPECT_FALSE(set.goToBookmark(mark));
}
