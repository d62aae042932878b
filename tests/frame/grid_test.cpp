#include "toolkit/data/mem_table.h"
#include "toolkit/ui/data_grid.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Grid : public testing::Test {
protected:
    void SetUp() override {
        table.open();
        for (const auto& [name, amount] : {std::pair{"satu", 1.5}, {"sebuah teks yang panjang", 1250000.25}, {"", 0}}) {
            table.append();
            table.setValue(u"nama", QString::fromUtf8(name));
            table.setValue(u"nilai", amount);
            table.post();
        }
        table.first();
        grid.setColumns({{.field = u"nama"_s, .caption = u"Nama"_s},
                         {.field = u"nilai"_s, .caption = u"Nilai"_s, .editable = true},
                         {.field = u"nilai"_s, .caption = u"Tersembunyi"_s, .hidden = true}});
        grid.setDataSet(&table);
        grid.show();
    }

    /// Keys go to the open cell if there is one, else to the grid.
    void press(int key, const QString& text = {}) {
        QWidget* receiver = grid.indexWidget(grid.currentIndex());
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QApplication::sendEvent(receiver ? receiver : &grid, &event);
        }
        QCoreApplication::processEvents();
    }

    data::MemTable table{{{.name = u"nama"_s}, {.name = u"nilai"_s, .type = data::FieldType::Real}}};
    DataGrid grid;
};

TEST_F(Grid, TypedNumberGoesIntoTheRecordWithItsComma) {
    grid.setCurrentIndex(grid.model()->index(1, 1));
    press(Qt::Key_2, u"2"_s);
    press(Qt::Key_Comma, u","_s);
    press(Qt::Key_5, u"5"_s);
    press(Qt::Key_Return);
    table.post();
    EXPECT_EQ(table.real(u"nilai"), 2.5);
    EXPECT_EQ(table.row(), 1);
}

TEST_F(Grid, TextThatIsNoNumberLeavesTheValue) {
    EXPECT_FALSE(grid.model()->setData(grid.model()->index(0, 1), u"dua"_s));
    EXPECT_FALSE(grid.model()->setData(grid.model()->index(0, 0), u"read-only"_s));
    EXPECT_TRUE(grid.model()->setData(grid.model()->index(0, 1), u" 7 "_s));
    table.post();
    EXPECT_EQ(table.real(u"nilai"), 7);
    EXPECT_EQ(table.text(u"nama"), u"satu"_s);
}

TEST_F(Grid, OpenCellIsTakenBeforeTheRecordIsPosted) {
    grid.setCurrentIndex(grid.model()->index(0, 1));
    press(Qt::Key_9, u"9"_s);
    table.settle();
    EXPECT_EQ(table.real(u"nilai"), 9);
}

TEST_F(Grid, ColumnsFitTheWidestOfCaptionAndTexts) {
    FitGridColumns(grid);
    const QFontMetrics metrics = grid.fontMetrics();
    EXPECT_EQ(grid.columnWidth(0), metrics.horizontalAdvance(u"sebuah teks yang panjang"_s) + 10);
    EXPECT_EQ(grid.columnWidth(1),
              std::max(metrics.horizontalAdvance(u"Nilai"_s) + 27, metrics.horizontalAdvance(u"1250000,25"_s) + 10));
    EXPECT_TRUE(grid.isEnabled());
    table.close();
    table.open();
    FitGridColumns(grid);
    EXPECT_FALSE(grid.isEnabled());
    EXPECT_EQ(grid.columnWidth(0), metrics.horizontalAdvance(u"Nama"_s) + 27);
}

TEST_F(Grid, StaysWhereItWasScrolledToThroughAWalkThatComesBack) {
    for (int i = 0; i < 200; ++i) {
        table.append();
        table.setValue(u"nama", u"teks"_s);
        table.post();
    }
    table.goToRow(100);
    QScrollBar& bar = *grid.verticalScrollBar();
    bar.setValue(bar.value() - 2);
    const int before = bar.value();
    {
        const data::ViewsOff off(table);
        const data::KeptPlace place(table);
        table.last();
        table.first();
        table.remove();
        place.restore();
    }
    QApplication::processEvents();
    EXPECT_EQ(grid.currentIndex().row(), 99);
    EXPECT_EQ(bar.value(), before);
}

} // namespace

TEST(GridColumn, FactorsLineUpAtTheComma) {
    QObject grid;
    const GridColumn factor({u"f"_s, u"F"_s, Show::Factor}, &grid);
    const auto shown = [&](double value) {
        return factor.linedUp(factor.displayText(value)).replace(QChar(0x2007), u'_').replace(QChar(0x2008), u'.');
    };
    const QStringList all{shown(0), shown(2.5), shown(1.25), shown(1234567), shown(5e6)};
    EXPECT_EQ(all.join(u' ').toStdString(), "0.__ 2,5_ 1,25 1.234.567.__ 5.000.000.__");
    EXPECT_EQ(factor.linedUp({}), QString());
}

TEST_F(Grid, ACutCellTellsItsTextAndAWholeOneNothing) {
    const auto tip = [this](int row) {
        const QPoint at = grid.visualRect(grid.model()->index(row, 0)).center();
        QHelpEvent event(QEvent::ToolTip, at, grid.viewport()->mapToGlobal(at));
        QApplication::sendEvent(grid.viewport(), &event);
        return QToolTip::text().toStdString();
    };
    FitGridColumns(grid);
    EXPECT_EQ(tip(1), "");
    grid.setColumnWidth(0, 60);
    EXPECT_EQ(tip(0), "");
    EXPECT_EQ(tip(1), "<qt>sebuah teks yang panjang</qt>");
}
