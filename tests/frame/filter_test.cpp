#include "base/filter_block.h"
#include "tests/frame/fixture.h"
#include "toolkit/ui/lookup_box.h"
#include "toolkit/ui/tree_box.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using base::FilterBlock;

/// What the user enters after choosing a field: a text, or the text of an entry.
struct Entry {
    int index;
    const char* value;
    bool withSub = true;
};

class Filter : public testing::Test {
protected:
    void SetUp() override {
        block.attach(company.services.session);
        block.openLookups();
    }

    void enter(const Entry& entry) {
        block.select(entry.index);
        const QString value = QString::fromUtf8(entry.value);
        if (entry.index <= FilterBlock::Nama)
            child<QLineEdit>(block, u"edt_filter").setText(value);
        if (entry.index == FilterBlock::Cabang)
            choose(child<LookupBox>(block, u"lookup_cab"), value);
        if (entry.index == FilterBlock::Jabatan)
            choose(child<LookupBox>(block, u"lookup_jbt"), value);
        if (entry.index == FilterBlock::Departemen && !value.isEmpty())
            chooseDepartment(value);
        child<QCheckBox>(block, u"chb_sub").setChecked(entry.withSub);
    }

    std::string byKey(const Entry& entry) {
        enter(entry);
        return block.conditionByKey().toStdString();
    }
    std::string byName(const Entry& entry) {
        enter(entry);
        return block.conditionByName().toStdString();
    }

    static void choose(LookupBox& box, const QString& text) {
        box.setText(text);
        Q_EMIT box.closedUp();
    }

    void chooseDepartment(const QString& text) {
        auto& box = child<TreeBox>(block, u"TCB_dept");
        box.choose(box.tree().findItems(text, Qt::MatchExactly | Qt::MatchRecursive).first());
        Q_EMIT box.closedUp();
    }

    SmallCompany company;
    FilterBlock block;
};

TEST_F(Filter, ByKeyAddsTheConditionOfTheChosenFieldAlone) {
    EXPECT_EQ(byKey({FilterBlock::Semua, "x"}), "");
    EXPECT_EQ(byKey({FilterBlock::Pin, ""}), "");
    EXPECT_EQ(byKey({FilterBlock::Pin, "A 2"}), " and pin = 'A 2' ");
    EXPECT_EQ(byKey({FilterBlock::Nik, "N'1"}), " and nik = 'N''1' ");
    EXPECT_EQ(byKey({FilterBlock::Nama, "Ma'"}), " and nama like 'Ma''%' ");
    EXPECT_EQ(byKey({FilterBlock::Cabang, ""}), "");
    EXPECT_EQ(byKey({FilterBlock::Cabang, "Cabang D'Or"}), " and cab_id_auto=3 ");
    EXPECT_EQ(byKey({FilterBlock::Departemen, ""}), " and dept_name like 'PT%' ");
    EXPECT_EQ(byKey({FilterBlock::Departemen, "", false}), " and dept_name like 'PT' ");
    EXPECT_EQ(byKey({FilterBlock::Departemen, "Las"}), R"( and dept_name like 'PT\\\\Produksi\\\\Las%' )");
    EXPECT_EQ(byKey({FilterBlock::Jabatan, "Kepala"}), " and func_id_auto=2 ");
    EXPECT_EQ(byKey({FilterBlock::Jabatan, ""}), "");
}

TEST_F(Filter, AnotherFieldForgetsWhatWasChosenBefore) {
    enter({FilterBlock::Cabang, "Pusat"});
    EXPECT_EQ(byName({FilterBlock::Jabatan, ""}), " and dept_name like 'PT%' ");
    for (const Entry& entry : {Entry{FilterBlock::Cabang, "Pusat"}, Entry{FilterBlock::Jabatan, "Staf"}}) {
        enter(entry);
        block.select(entry.index);
        EXPECT_EQ(block.conditionByKey(), QString());
    }
    enter({FilterBlock::Departemen, "Las"});
    EXPECT_EQ(byName({FilterBlock::Semua, ""}), " and dept_name like 'PT%' ");
}

TEST_F(Filter, OfTwoEntriesThatReadAlikeTheChosenOneStays) {
    company.database.run(u"insert into func values(8, 'Kepala'), (9, 'Kepala')"_s);
    block.openLookups();
    block.select(FilterBlock::Jabatan);
    auto& box = child<LookupBox>(block, u"lookup_jbt");
    box.setKey(9);
    Q_EMIT box.activated(box.currentIndex());
    Q_EMIT box.lineEdit()->editingFinished();
    EXPECT_EQ(block.conditionByKey(), u" and func_id_auto=9 "_s);
}

TEST_F(Filter, LimitedSessionKeepsItsBranchAfterEachChange) {
    company.services.session.session_cab_id = base::Branch::one(3);
    EXPECT_EQ(block.baseCondition(), u"where emp_id_auto<>-1 and emp_status=0 and cab_id_auto=3 "_s);
    for (const int index : {FilterBlock::Semua, FilterBlock::Cabang, FilterBlock::Jabatan}) {
        block.select(index);
        EXPECT_EQ(child<LookupBox>(block, u"lookup_cab").text(), u"Cabang D'Or"_s);
        EXPECT_FALSE(child<LookupBox>(block, u"lookup_cab").isEnabled());
    }
    block.select(FilterBlock::Cabang);
    EXPECT_EQ(block.conditionByKey(), u" and cab_id_auto=3 "_s);
    EXPECT_EQ(block.conditionByName(), u" and cab_name='Cabang D''Or' and cab_id_auto=3  and dept_name like 'PT%' "_s);
    // Neither a branch without a name nor one that is not known yet opens the search by name.
    for (const auto& [limit, condition] :
         {std::pair(base::Branch::one(9), "and cab_id_auto=9 "), std::pair(base::Branch(), "and cab_id_auto=NULL ")}) {
        company.services.session.session_cab_id = limit;
        EXPECT_EQ(byName({FilterBlock::Cabang, "Pusat"}),
                  " and cab_name='Pusat' " + (condition + std::string(" and dept_name like 'PT%' ")));
        EXPECT_EQ(block.baseCondition().toStdString(),
                  std::string("where emp_id_auto<>-1 and emp_status=0 ") + condition);
    }
}

TEST_F(Filter, ScreensMayAddFieldsWithTheirOwnControl) {
    auto* control = new QLineEdit;
    const int index = block.addItem(u"Group Gaji"_s, control);
    EXPECT_EQ(index, 7);
    EXPECT_TRUE(control->isHidden());
    block.select(index);
    EXPECT_FALSE(control->isHidden());
    EXPECT_TRUE(child<QLineEdit>(block, u"edt_filter").isHidden());
    EXPECT_EQ(block.conditionByKey(), QString());
}

} // namespace
