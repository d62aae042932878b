// Where sections go when a page ends.
#include "tests/report/paper.h"
#include "toolkit/report/report.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using report::Band;
using report::field;
using report::label;
using report::lineMm;

namespace {

/// Sections with a head, `lines` lines and a foot in a frame, on pages that take ten lines.
struct Orders {
    explicit Orders(const QList<int>& lines) {
        QList<QStringList> heads, details;
        for (int order = 1; order <= lines.size(); ++order) {
            heads << QStringList{QString::number(order)};
            for (int line = 1; line <= lines[order - 1]; ++line)
                details << QStringList{QString::number(order), u"%1.%2"_s.arg(order).arg(line)};
        }
        m_orders = table({u"id"_s}, heads);
        m_lines = table({u"id"_s, u"text"_s}, details);
    }

    [[nodiscard]] report::Report report() const {
        return {.paper = {.width = 60, .height = 10 * lineMm + 10, .margin = 5},
                .master = m_orders.get(),
                .section = {.parts = {Band{.name = u"head"_s, .items = {label({.width = 20}, u"head"_s)}},
                                      report::List{.rows = m_lines.get(),
                                                   .link = u"id"_s,
                                                   .line = {.name = u"line"_s,
                                                            .items = {field({.width = 20}, *m_lines, u"text"_s)}}},
                                      Band{.name = u"foot"_s, .items = {label({.width = 20}, u"foot"_s)}}},
                            .frame = report::Frame{.name = u"order"_s}}};
    }

    std::unique_ptr<data::MemTable> m_orders;
    std::unique_ptr<data::MemTable> m_lines;
};

} // namespace

TEST(Breaking, ASectionThatDoesNotFitTheRestOfThePageMovesWhole) {
    const Orders orders({4, 3, 8, 8});
    EXPECT_EQ(paper(compose(orders.report())), "page 1 of 4\n[] | head\n1.1\n1.2\n1.3\n1.4\nfoot\n"
                                               "page 2 of 4\n[] | head\n2.1\n2.2\n2.3\nfoot\n"
                                               "page 3 of 4\n[] | head\n3.1\n3.2\n3.3\n3.4\n3.5\n3.6\n3.7\n3.8\nfoot\n"
                                               "page 4 of 4\n[] | head\n4.1\n4.2\n4.3\n4.4\n4.5\n4.6\n4.7\n4.8\nfoot");
}

TEST(Breaking, ASectionTallerThanAPageBeginsOnAPageAndIsBrokenBetweenLines) {
    const Orders orders({1, 20});
    EXPECT_EQ(paper(compose(orders.report())),
              "page 1 of 4\n[] | head\n1.1\nfoot\n"
              "page 2 of 4\n[] | head\n2.1\n2.2\n2.3\n2.4\n2.5\n2.6\n2.7\n2.8\n2.9\n"
              "page 3 of 4\n[] | 2.10\n2.11\n2.12\n2.13\n2.14\n2.15\n2.16\n2.17\n2.18\n2.19\n"
              "page 4 of 4\n[] | 2.20\nfoot");
}

TEST(Breaking, AWrappedTextIsNotTorn) {
    const Orders orders({12});
    report::Report report = orders.report();
    auto& list = std::get<report::List>(report.section.parts[1]);
    list.line.items[0].text = [&] {
        const QString text = orders.m_lines->text(u"text");
        return text == u"1.9"_s ? u"Angsuran Pinjaman Koperasi"_s : text;
    };
    EXPECT_EQ(paper(compose(report)), "page 1 of 2\n[] | head\n1.1\n1.2\n1.3\n1.4\n1.5\n1.6\n1.7\n1.8\n"
                                      "page 2 of 2\n[] | Angsuran/Pinjaman/Koperasi\n1.10\n1.11\n1.12\nfoot");
}

TEST(Breaking, ListsBesideEachOtherBreakWhereNeitherIsTorn) {
    const Orders left({12});
    const Orders right({12});
    report::Report report = left.report();
    report::List rightList = std::get<report::List>(right.report().section.parts[1]);
    rightList.line.items[0].text = [&] {
        return right.m_lines->row() == 8 ? u"Angsuran Pinjaman Koperasi"_s : right.m_lines->text(u"text");
    };
    report.section.parts = {
        report::SideBySide{.left = std::get<report::List>(report.section.parts[1]), .right = rightList, .rightX = 25}};
    const report::Document document = compose(report);
    ASSERT_EQ(document.pages.size(), 2u);
    // The ninth line at the right takes three lines; only eight of either list stand before it.
    EXPECT_EQ(document.pages[0].marks.size(), 1u + 8 + 8);
    EXPECT_EQ(document.pages[1].marks.size(), 1u + 4 + 4);
}

TEST(Breaking, APaddedFrameLeavesLessRoomAndEndsWithItsPiece) {
    const Orders orders({12});
    report::Report report = orders.report();
    report.section.frame->padding = 3;
    const report::Document document = compose(report);
    EXPECT_EQ(textLines(document).filter(u"box"_s).join(u'\n').toStdString(),
              "order 5.0 5.0 \"\" box\norder 5.0 5.0 \"\" box");
    const auto bottom = [&](size_t page) { return document.pages[page].marks.front().box.bottom(); };
    EXPECT_NEAR(bottom(0), 5 + 8 * lineMm + 6, 0.01);
    EXPECT_NEAR(bottom(1), 5 + 6 * lineMm + 6, 0.01);
}

TEST(Breaking, SectionsMayAskForAPageOfTheirOwnAndForAGap) {
    const Orders orders({1, 1});
    report::Report report = orders.report();
    report.section.gap = lineMm;
    EXPECT_EQ(compose(report).pages.size(), 1u);
    report.section.gap = 5 * lineMm;
    EXPECT_EQ(compose(report).pages.size(), 2u);
    report.section.gap = 0;
    report.section.start = report::Section::Start::NewPage;
    EXPECT_EQ(paper(compose(report)), "page 1 of 2\n[] | head\n1.1\nfoot\npage 2 of 2\n[] | head\n2.1\nfoot");
}
