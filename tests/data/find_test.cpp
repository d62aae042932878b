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
    for (const int line : {1, 2})
        add(set, {line, u"Baru"_s});
    EXPECT_EQ(listing(set), "[1 Baru]");
    set.setFilter(u"line"_s, QVariant());
    EXPECT_TRUE(set.isEmpty());
    set.clearFilter();
    EXPECT_EQ(listing(set), "[1 Baru] | 2 Baru");
    EXPECT_THROW(set.setFilter(u"none"_s, 1), data::Fault);
}

TEST_F(Find, LocateTakesTheFirstShownMatch) {
    const struct {
        data::Matches matches;
        int all;
        int underFilter2;
    } cases[] = {
        {{{u"code", u"pokok"_s}}, 1, 0},
        {{{u"code", u"POKOK"_s}}, -1, -1},
        {{{u"line", 2}, {u"code", u"Makan"_s}}, 3, 1},
        {{{u"code", u"Makan"_s}, {u"line", u"1"_s}}, 2, -1},
        {{{u"code", QVariant()}}, 4, -1},
        {{{u"code", u""_s}}, -1, -1},
    };
    for (const auto& one : cases)
        EXPECT_EQ(set.rowOf(one.matches), one.all);
    set.setFilter(u"line"_s, 2);
    for (const auto& one : cases)
        EXPECT_EQ(set.rowOf(one.matches), one.underFilter2);
    EXPECT_FALSE(set.locate({{u"code", u"Pokok"_s}}));
    EXPECT_EQ(listing(set), "[2 pokok] | 2 Makan");
    EXPECT_TRUE(set.locate({{u"code", u"Makan"_s}}));
    EXPECT_EQ(listing(set), "2 pokok | [2 Makan]");
    EXPECT_THROW((void)set.locate({{u"line", u"satu"_s}}), data::Fault);
}

TEST_F(Find, AKeptPlaceIsTheRecordOrWhatIsBehindItOrTheLast) {
    set.goToRow(1);
    const data::KeptPlace kept(set);
    set.first();
    set.remove();
    EXPECT_TRUE(kept.restore());
    EXPECT_EQ(listing(set), "[2 pokok] | 1 Makan | 2 Makan | 1 NULL");
    set.remove();
    set.last();
    EXPECT_FALSE(kept.restore());
    EXPECT_EQ(listing(set), "[1 Makan] | 2 Makan | 1 NULL");
    set.setFilter(u"code"_s, u"Makan"_s);
    for (set.first(); !set.isEmpty();)
        set.remove();
    set.clearFilter();
    add(set, {7, u"Lain"_s});
    set.first();
    set.remove();
    set.append();
    EXPECT_FALSE(kept.restore());
    EXPECT_EQ(listing(set), "[7 Lain]") << "what nobody filled in is gone";
}
