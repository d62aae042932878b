// What the engine prints on a page, and with which records its hooks and texts are asked.
#include "tests/report/paper.h"
#include "toolkit/report/report.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using report::amount;
using report::Band;
using report::field;
using report::label;
using report::sumOf;

namespace {

constexpr report::Paper smallPaper{.width = 100, .height = 60, .margin = 5};

report::Report nameReport(data::DataSet& names) {
    return {.paper = smallPaper,
            .master = &names,
            .section = {.parts = {Band{.name = u"line"_s, .items = {field({.width = 40}, names, u"nama"_s)}}}}};
}

} // namespace

TEST(Pages, FooterKnowsThePageCountAndTheRecordsSoFarAndTheCursorStaysWhereItWas) {
    const auto names = table({u"nama"_s}, {{u"Ani"_s}, {u"Budi"_s}, {u"Citra"_s}, {u"Dewi"_s}, {u"Eko"_s}});
    const auto nobody = table({u"nama"_s}, {});
    const auto printed = [](data::DataSet& rows) {
        report::Report report = nameReport(rows);
        report.paper.height = 34; // two lines between header and footer
        report.header = [](const report::PageInfo& page) {
            return std::vector{Band{.items = {label({.width = 40}, u"Daftar %1"_s.arg(page.number))}}};
        };
        report.footer = [](const report::PageInfo& page) {
            const QString text = u"%1/%2, %3"_s.arg(page.number).arg(page.count).arg(page.records);
            return std::vector{Band{.items = {label({.width = 40}, text)}}};
        };
        return paper(compose(report));
    };
    names->goToRow(1);
    EXPECT_EQ(printed(*names), "page 1 of 3\nDaftar 1\nAni\nBudi\n1/3, 2\n"
                               "page 2 of 3\nDaftar 2\nCitra\nDewi\n2/3, 4\n"
                               "page 3 of 3\nDaftar 3\nEko\n3/3, 5");
    EXPECT_EQ(names->text(u"nama"), u"Budi"_s);
    EXPECT_EQ(printed(*nobody), "page 1 of 1\nDaftar 1\n1/1, 0");
}

TEST(Bands, GrowWithATextTooWideForItsPlaceAndHooksDecideAtEachPrinting) {
    const auto names =
        table({u"nama"_s},
              {{u"Raden Ajeng Siti Kusumawardhani"_s}, {u"Budi"_s}, {u"Wwwwwwwwwwwwwwwwwwwwwwwww"_s}, {u"Dewi"_s}});
    report::Report report = nameReport(*names);
    std::get<Band>(report.section.parts[0]).items[0].onPrint = [&](report::Printing& item) {
        item.visible = names->row() != 1;
        item.underline = names->row() == 2;
        if (names->row() == 3)
            item = {.text = u"\"%1\\"_s.arg(item.text), .fill = Qt::yellow};
    };
    EXPECT_EQ(textLines(compose(report)).join(u'\n').toStdString(), R"(page 1 of 1 100.0x60.0 mm
line 5.0 5.0 "Raden Ajeng Siti\nKusumawardhani"
line 5.0 19.5 "Wwwwwwwwwwwwwwwwwww\nwwwwww" underline
line 5.0 29.1 "\"Dewi\\" fill #ffff00)");
}

// Two sets of lines that belong to people.
TEST(Lists, ShowRowsAndSumOfTheRecordTheLeftOneDoneBeforeTheRightOneBegins) {
    const auto people = table({u"id"_s}, {{u"1"_s}, {u"2"_s}, {u"3"_s}});
    const auto left = table({u"id"_s, u"nilai"_s}, {{u"3"_s, u"30"_s}, {u"1"_s, u"10"_s}, {u"1"_s, u"11"_s}});
    const auto right = table({u"id"_s, u"nilai"_s}, {{u"2"_s, u"20"_s}, {u"1"_s, u"15"_s}});
    const auto list = [](data::MemTable& rows, const QString& title) {
        return report::List{.rows = &rows,
                            .link = u"id"_s,
                            .head = {.items = {label({.width = 20}, title)}},
                            .line = {.items = {field({.width = 20}, rows, u"nilai"_s)}},
                            .summary = {.items = {amount({.width = 20}, [&rows] { return sumOf(rows, u"nilai"_s); })}}};
    };
    report::List rightList = list(*right, u"right"_s);
    rightList.line.items[0].text = [&] { return u"%1 by %2"_s.arg(right->text(u"nilai"), left->text(u"nilai")); };
    const report::SideBySide both{.left = list(*left, u"left"_s), .right = rightList, .rightX = 40};
    EXPECT_EQ(paper(report::compose({.paper = {.width = 100, .height = 90, .margin = 5},
                                     .master = people.get(),
                                     .section = {.parts = {both}}})),
              "page 1 of 1\n"
              "left | right\n10 | 15 by 11\n11 | 15\n21\n"
              "left | right\n0 | 20 by \n20\n"
              "left | right\n30 | 0\n30");
}
