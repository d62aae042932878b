#include "toolkit/data/mem_table.h"
#include "toolkit/ui/data_grid.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <gtest/gtest.h>

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
        grid.setColumns({{.name = u"a"_qs, .field = u"nama"_qs, .caption = u"Nama"_qs},
                         {.name = u"b"_qs, .field = u"nilai"_qs, .caption = u"Nilai"_qs, .editable = true},
                         {.name = u"c"_qs, .field = u"nilai"_qs, .caption = u"Tersembunyi"_qs, .hidden = true}});
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

    data::MemTable table{{{.name = u"nama"_qs}, {.name = u"nilai"_qs, .type = data::FieldType::Real}}};
    DataGrid grid;
};

TEST_F(Grid, TypedNumberGoesIntoTheRecordWithItsComma) {
    grid.setCurrentIndex(grid.model()->index(1, 1));
    press(Qt::Key_2, u"2"_qs);
    press(Qt::Key_Comma, u","_qs);
    press(Qt::Key_5, u"5"_qs);
    press(Qt::Key_Return);
    table.post();
    EXPECT_EQ(table.real(u"nilai"), 2.5);
    EXPECT_EQ(table.row(), 1);
}

TEST_F(Grid, TextThatIsNoNumberLeavesTheValue) {
    EXPECT_FALSE(grid.model()->setData(grid.model()->index(0, 1), u"dua"_qs));
    EXPECT_FALSE(grid.model()->setData(grid.model()->index(0, 0), u"read-only"_qs));
    EXPECT_TRUE(grid.model()->setData(grid.model()->index(0, 1), u" 7 "_qs));
    table.post();
    EXPECT_EQ(table.real(u"nilai"), 7);
    EXPECT_EQ(table.text(u"nama"), u"satu"_qs);
}

TEST_F(Grid, OpenCellIsTakenBeforeTheRecordIsPosted) {
    grid.setCurrentIndex(grid.model()->index(0, 1));
    press(Qt::Key_9, u"9"_qs);
    table.settle();
    EXPECT_EQ(table.real(u"nilai"), 9);
}

TEST_F(Grid, ColumnsFitTheWidestOfCaptionAndTexts) {
    FitGridColumns(grid);
    const QFontMetrics metrics = grid.fontMetrics();
    EXPECT_EQ(grid.columnWidth(0), metrics.horizontalAdvance(u"sebuah teks yang panjang"_qs) + 10);
    EXPECT_EQ(grid.columnWidth(1),
              std::max(metrics.horizontalAdvance(u"Nilai"_qs) + 27, metrics.horizontalAdvance(u"1250000,25"_qs) + 10));
    EXPECT_TRUE(grid.isEnabled());
    table.close();
    table.open();
    FitGridColumns(grid);
    EXPECT_FALSE(grid.isEnabled());
    EXPECT_EQ(grid.columnWidth(0), metrics.horizontalAdvance(u"Nama"_qs) + 27);
}

TEST_F(Grid, CellsKeepTheirColourOnTheCurrentRow) {
    grid.setCellColour(
        [](const CellInView& cell) { return cell.column.objectName() == u"b"_qs ? QColor(Qt::yellow) : QColor(); });
    grid.setCurrentIndex(grid.model()->index(0, 0));
    const QImage picture = grid.viewport()->grab().toImage();
    const auto colourAt = [&](int column) {
        return picture.pixelColor(grid.visualRect(grid.model()->index(0, column)).topLeft() + QPoint(2, 2));
    };
    EXPECT_EQ(colourAt(0), grid.palette().color(QPalette::Highlight));
    EXPECT_EQ(colourAt(1), QColor(Qt::yellow));
}

TEST(Bands, CaptionStandsOverThePartThatCanBeSeen) {
    DataGrid grid;
    grid.setColumns({{.name = u"a"_qs, .field = u"a"_qs, .caption = {}, .band = u"lebar"_qs},
                     {.name = u"b"_qs, .field = u"b"_qs, .caption = {}, .band = u"lebar"_qs}},
                    {{.name = u"lebar"_qs, .caption = u"MMMM"_qs}});
    grid.resize(200, 100);
    grid.setColumnWidth(0, 500);
    grid.setColumnWidth(1, 500);
    grid.show();
    const auto inkInTheMiddle = [&grid] {
        const QWidget& header = *grid.horizontalHeader()->viewport();
        const QRect middle(header.width() / 2 - 20, 0, 40, header.height() / 2);
        const QImage picture = grid.horizontalHeader()->viewport()->grab(middle).toImage();
        int dark = 0;
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 0; y < picture.height(); ++y)
                dark += qGray(picture.pixel(x, y)) < 100;
        return dark;
    };
    EXPECT_GT(inkInTheMiddle(), 20);
    grid.horizontalScrollBar()->setValue(grid.horizontalScrollBar()->maximum());
    EXPECT_GT(inkInTheMiddle(), 20);
}

} // namespace
