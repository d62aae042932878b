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
    return {.title = u"Nama"_s,
            .paper = smallPaper,
            .master = &names,
            .section = {.parts = {Band{.name = u"line"_s, .items = {field({.width = 40}, names, u"nama"_s)}}}}};
}

} // namespace

TEST(Pages, FooterKnowsThePageCountAndTheRecordsSoFar) {
    const auto names = table({u"nama"_s}, {{u"Ani"_s}, {u"Budi"_s}, {u"Citra"_s}, {u"Dewi"_s}, {u"Eko"_s}});
    report::Report report = nameReport(*names);
    report.paper.height = 34; // two lines between header and footer
    report.header = [](const report::PageInfo& page) {
        return std::vector{Band{.name = u"header"_s, .items = {label({.width = 40}, u"Daftar %1"_s.arg(page.number))}}};
    };
    report.footer = [](const report::PageInfo& page) {
        const QString text = u"%1/%2, %3"_s.arg(page.number).arg(page.count).arg(page.records);
        return std::vector{Band{.name = u"footer"_s, .items = {label({.width = 40}, text)}}};
    };
    EXPECT_EQ(paper(compose(report)), "page 1 of 3\nDaftar 1\nAni\nBudi\n1/3, 2\n"
                                      "page 2 of 3\nDaftar 2\nCitra\nDewi\n2/3, 4\n"
                                      "page 3 of 3\nDaftar 3\nEko\n3/3, 5");
}

TEST(Pages, WithoutRecordsThereIsOnePage) {
    const auto names = table({u"nama"_s}, {});
    EXPECT_EQ(paper(compose(nameReport(*names))), "page 1 of 1");
}

TEST(Pages, PrintingLeavesTheCursorOfTheMaster) {
    const auto names = table({u"nama"_s}, {{u"Ani"_s}, {u"Budi"_s}, {u"Citra"_s}});
    names->goToRow(1);
    EXPECT_EQ(compose(nameReport(*names)).pages.size(), 1u);
    EXPECT_EQ(names->text(u"nama"), u"Budi"_s);
}

TEST(Bands, ATextTooWideForItsPlaceTakesMoreLinesAndPushesWhatFollows) {
    const auto names =
        table({u"nama"_s}, {{u"Raden Ajeng Siti Kusumawardhani"_s}, {u"Budi"_s}, {u"Wwwwwwwwwwwwwwwwwwwwwwwww"_s}});
    const report::Document document = compose(nameReport(*names));
    EXPECT_EQ(textLines(document).join(u'\n').toStdString(), R"(page 1 of 1 100.0x60.0 mm
line 5.0 5.0 "Raden Ajeng Siti\nKusumawardhani"
line 5.0 14.7 "Budi"
line 5.0 19.5 "Wwwwwwwwwwwwwwwwwww\nwwwwww")");
}

TEST(Bands, HooksDecideAtEachPrinting) {
    const auto names = table({u"nama"_s}, {{u"Ani"_s}, {u"Budi"_s}, {u"Citra"_s}, {u"Dewi"_s}});
    report::Report report = nameReport(*names);
    std::get<Band>(report.section.parts[0]).items[0].onPrint = [&](report::Printing& item) {
        item.visible = names->row() != 1;
        item.underline = names->row() == 2;
        if (names->row() == 3)
            item.text = u"\"%1\\"_s.arg(item.text);
        if (names->row() == 3)
            item.fill = Qt::yellow;
    };
    EXPECT_EQ(textLines(compose(report).pages[0]).join(u'\n').toStdString(), R"(line 5.0 5.0 "Ani"
line 5.0 14.7 "Citra" underline
line 5.0 19.5 "\"Dewi\\" fill #ffff00)");
}

TEST(Bands, AHiddenCounterCountsEachPrinting) {
    const auto names = table({u"nama"_s}, {{u"Ani"_s}, {u"Budi"_s}, {u"Citra"_s}});
    report::Report report = nameReport(*names);
    int printed = 0;
    report::Item counter;
    counter.onPrint = [&](report::Printing& item) {
        item.visible = false;
        ++printed;
    };
    std::get<Band>(report.section.parts[0]).items.push_back(counter);
    report.section.frame = report::Frame{.name = u"frame"_s, .onPrint = [&](report::Printing& frame) {
                                             frame.fill = printed % 2 == 0 ? Qt::white : Qt::black;
                                         }};
    EXPECT_EQ(paper(compose(report), u"frame"_s), "[#ffffff]\n[#000000]\n[#ffffff]");
}

namespace {

/// Two sets of lines that belong to people: the left one has a number per line.
struct People {
    std::unique_ptr<data::MemTable> people = table({u"id"_s}, {{u"1"_s}, {u"2"_s}, {u"3"_s}});
    std::unique_ptr<data::MemTable> left =
        table({u"id"_s, u"nilai"_s}, {{u"3"_s, u"30"_s}, {u"1"_s, u"10"_s}, {u"1"_s, u"11"_s}});
    std::unique_ptr<data::MemTable> right = table({u"id"_s, u"nilai"_s}, {{u"2"_s, u"20"_s}, {u"1"_s, u"15"_s}});

    [[nodiscard]] static report::List list(data::MemTable& rows, const QString& title) {
        return {.rows = &rows,
                .link = u"id"_s,
                .head = {.name = title, .items = {label({.width = 20}, title)}},
                .line = {.name = title, .items = {field({.width = 20}, rows, u"nilai"_s)}},
                .summary = {.name = title, .items = {amount({.width = 20}, [&] { return sumOf(rows, u"nilai"_s); })}}};
    }
};

} // namespace

TEST(Lists, ShowTheRowsOfTheRecordInOrderAndTheirSum) {
    People sets;
    const report::Report report{.paper = {.width = 100, .height = 90, .margin = 5},
                                .master = sets.people.get(),
                                .section = {.parts = {People::list(*sets.left, u"left"_s)}}};
    EXPECT_EQ(paper(compose(report)), "page 1 of 1\nleft\n10\n11\n21\nleft\n0\nleft\n30\n30");
}

TEST(Lists, BesideEachOtherTheLeftOneIsDoneBeforeTheRightOneBegins) {
    People sets;
    report::List right = People::list(*sets.right, u"right"_s);
    right.line.items[0].text = [&] { return u"%1 by %2"_s.arg(sets.right->text(u"nilai"), sets.left->text(u"nilai")); };
    const report::Report report{
        .paper = {.width = 100, .height = 90, .margin = 5},
        .master = sets.people.get(),
        .section = {
            .parts = {report::SideBySide{.left = People::list(*sets.left, u"left"_s), .right = right, .rightX = 40}}}};
    EXPECT_EQ(paper(compose(report)), "page 1 of 1\n"
                                      "left | right\n10 | 15 by 11\n11 | 15\n21\n"
                                      "left | right\n0 | 20 by \n20\n"
                                      "left | right\n30 | 0\n30");
}

TEST(Lists, WhatFollowsListsStandsWhereToldButNeverInThem) {
    struct Case {
        double told;
        double expected; ///< below the top of the left summary
    };
    for (const Case& each : {Case{6, 6}, Case{20, 20}, Case{1, report::lineMm}}) {
        People sets;
        std::pair<int, int> lines;
        const report::SideBySide both{.left = People::list(*sets.left, u"left"_s),
                                      .right = People::list(*sets.right, u"right"_s),
                                      .rightX = 40,
                                      .nextPlace = [&](int left, int right) {
                                          lines = {left, right};
                                          return each.told;
                                      }};
        const report::Report report{
            .paper = {.width = 100, .height = 200, .margin = 5},
            .master = sets.people.get(),
            .section = {.parts = {both, Band{.name = u"foot"_s, .items = {label({.width = 20}, u"foot"_s)}}}}};
        const std::vector<report::Mark> marks = compose(report).pages[0].marks;
        const auto foot = std::ranges::find(marks, u"foot"_s, &report::Mark::band);
        ASSERT_NE(foot, marks.end());
        EXPECT_NEAR(foot->box.y(), 5 + 3 * report::lineMm + each.expected, 0.01) << each.told;
        EXPECT_EQ(lines, std::pair(1, 0)) << "the last record's";
    }
}
