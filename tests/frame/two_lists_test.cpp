#include "toolkit/data/mem_table.h"
#include "toolkit/ui/two_lists.h"

#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

data::Field key() {
    return {.name = u"emp_id_auto"_s, .type = data::FieldType::Integer};
}

std::string listing(const data::DataSet& list) {
    QStringList rows;
    for (int row = 0; row < list.rowCount(); ++row)
        rows << data::textOf(list.valueAt(row, 0)) + data::textOf(list.valueAt(row, 1));
    return rows.join(u' ').toStdString();
}

class Lists : public testing::Test {
protected:
    void SetUp() override {
        for (auto* grid : {&left, &right}) {
            grid->setColumns({{u"nama"_s, u"Nama"_s}, {u"no_rek"_s, u"No rekening"_s, Show::Plain, false, {}, true}});
            grid->selectSeveralRows();
        }
        candidates.open();
        members.open();
        left.setDataSet(&candidates);
        right.setDataSet(&members);
        readCandidates();
        members.append();
        members.setValue(u"emp_id_auto", 3);
        members.setValue(u"nama", u"c"_s);
        members.setValue(u"no_rek", u"77"_s);
        members.post();
        lists.bind(screen, {&buttons[0], &buttons[1], &buttons[2], &buttons[3]});
        lists.reconcile();
    }

    void readCandidates() {
        for (candidates.last(); !candidates.isEmpty();)
            candidates.remove();
        for (const int id : {1, 2, 3, 4}) {
            candidates.append();
            candidates.setValue(u"emp_id_auto", id);
            candidates.setValue(u"nama", QString(QChar(u'a' + id - 1)));
            candidates.post();
        }
    }
    void select(DataGrid& grid, const std::vector<int>& rows) {
        grid.clearSelection();
        for (const int row : rows)
            grid.selectionModel()->select(grid.model()->index(row, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    std::string both() { return listing(candidates) + " | " + listing(members); }

    data::MemTable candidates{{key(), {.name = u"nama"_s}, {.name = u"no_rek"_s}}};
    data::MemTable members{{key(), {.name = u"nama"_s}, {.name = u"no_rek"_s}}};
    QWidget screen;
    QPushButton buttons[4];
    DataGrid left;
    DataGrid right;
    TwoLists lists{{&left, &right, {u"emp_id_auto"_s, u"nama"_s}, [this] { readCandidates(); }}};
};

TEST_F(Lists, RowsMoveAsTheyAreSelectedAndStandOnOneSideOnly) {
    EXPECT_EQ(both(), "1a 2b 4d | 3c");
    select(left, {0, 2});
    buttons[0].click();
    EXPECT_EQ(both(), "2b | 3c 1a 4d");
    select(left, {});
    buttons[0].click();
    EXPECT_EQ(both(), "2b | 3c 1a 4d") << "without a selection nothing moves";
    buttons[1].click();
    EXPECT_EQ(both(), " | 3c 1a 4d 2b");
    EXPECT_FALSE(left.isEnabled());
    select(right, {0, 1});
    buttons[2].click();
    EXPECT_EQ(both(), "1a 3c | 4d 2b");
    buttons[3].click();
    EXPECT_EQ(both(), "1a 2b 3c 4d | ");
    EXPECT_FALSE(right.isEnabled());
    buttons[1].click();
    EXPECT_EQ(data::textOf(members.valueAt(2, 2)), QString()) << "what was typed beside a row goes with it";
}

TEST_F(Lists, ACellIsOpenWhereItsColumnAndTheRuleSay) {
    right.setCellOpen([](const GridColumn& column, int row) { return column.field() == u"no_rek"_s && row == 1; });
    buttons[1].click();
    const auto isOpen = [this](int row, int column) {
        return bool(right.model()->flags(right.model()->index(row, column)) & Qt::ItemIsEditable);
    };
    EXPECT_TRUE(isOpen(1, 1));
    EXPECT_FALSE(isOpen(0, 1) || isOpen(1, 0));
}

} // namespace
