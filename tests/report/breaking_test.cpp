// Where sections go when a page ends.
#include "tests/report/paper.h"
#include "toolkit/report/output.h"
#include "toolkit/report/report.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using report::Band;
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
        list = {.rows = m_lines.get(),
                .link = u"id"_s,
                .line = {.items = {report::field({.width = 20}, *m_lines, u"text"_s)}}};
        report = {.paper = {.width = 60, .height = 10 * lineMm + 10, .margin = 5},
                  .master = m_orders.get(),
                  .section = {.parts = {band(u"head"_s), list, band(u"foot"_s)}, .frame = report::Frame{}}};
    }

    static Band band(const QString& text) { return {.items = {label({.width = 20}, text)}}; }
    /// Its text on the line, which is counted from 1, takes three lines.
    void wrapLine(int line) {
        list.line.items[0].text = [this, line] {
            return m_lines->row() == line - 1 ? u"Angsuran Pinjaman Koperasi"_s : m_lines->text(u"text");
        };
    }

    std::unique_ptr<data::MemTable> m_orders, m_lines;
    report::List list;
    report::Report report;
};

} // namespace

TEST(Breaking, ASectionThatDoesNotFitTheRestOfThePageMovesWhole) {
    EXPECT_EQ(paper(compose(Orders({4, 3, 8, 8}).report)),
              "page 1 of 4\n[] | head\n1.1\n1.2\n1.3\n1.4\nfoot\n"
              "page 2 of 4\n[] | head\n2.1\n2.2\n2.3\nfoot\n"
              "page 3 of 4\n[] | head\n3.1\n3.2\n3.3\n3.4\n3.5\n3.6\n3.7\n3.8\nfoot\n"
              "page 4 of 4\n[] | head\n4.1\n4.2\n4.3\n4.4\n4.5\n4.6\n4.7\n4.8\nfoot");
}

TEST(Breaking, ASectionTallerThanAPageBeginsOnAPageAndIsBrokenBetweenLines) {
    EXPECT_EQ(paper(compose(Orders({1, 20}).report)),
              "page 1 of 4\n[] | head\n1.1\nfoot\n"
              "page 2 of 4\n[] | head\n2.1\n2.2\n2.3\n2.4\n2.5\n2.6\n2.7\n2.8\n2.9\n"
              "page 3 of 4\n[] | 2.10\n2.11\n2.12\n2.13\n2.14\n2.15\n2.16\n2.17\n2.18\n2.19\n"
              "page 4 of 4\n[] | 2.20\nfoot");
}

TEST(Breaking, ListsBesideEachOtherBreakWhereNoTextIsTorn) {
    Orders left({12});
    Orders right({12});
    right.wrapLine(9);
    left.report.section.parts = {report::SideBySide{.left = left.list, .right = right.list, .rightX = 25}};
    EXPECT_EQ(paper(compose(left.report)),
              "page 1 of 2\n[] | 1.1 | 1.1\n1.2 | 1.2\n1.3 | 1.3\n1.4 | 1.4\n"
              "1.5 | 1.5\n1.6 | 1.6\n1.7 | 1.7\n1.8 | 1.8\n"
              "page 2 of 2\n[] | 1.9 | Angsuran/Pinjaman/Koperasi\n1.10\n1.11\n1.12 | 1.10\n1.11\n1.12");
}

TEST(Breaking, APaddedFrameLeavesLessRoomAndEndsWithItsPiece) {
    Orders orders({12});
    orders.report.section.frame->padding = 3;
    const report::Document document = compose(orders.report);
    ASSERT_EQ(document.pages.size(), 2u);
    EXPECT_NEAR(document.pages[0].marks.front().box.bottom(), 5 + 8 * lineMm + 6, 0.01);
    EXPECT_NEAR(document.pages[1].marks.front().box.bottom(), 5 + 6 * lineMm + 6, 0.01);
}

TEST(Breaking, AGapBetweenSectionsTakesRoom) {
    Orders orders({1, 1});
    orders.report.section.gap = lineMm;
    EXPECT_EQ(compose(orders.report).pages.size(), 1u);
    orders.report.section.gap = 5 * lineMm;
    EXPECT_EQ(compose(orders.report).pages.size(), 2u);
}

TEST(Breaking, HeaderAndFooterMustLeaveRoomForALine) {
    Orders orders({3});
    const auto withHeader = [&orders](int lines) {
        orders.report.header = [lines](const report::PageInfo&) { return std::vector<Band>(lines, Orders::band({})); };
        return compose(orders.report).pages.size();
    };
    EXPECT_EQ(withHeader(9), 5u);
    EXPECT_THROW((void)withHeader(10), report::NoRoomFault);
    orders.report.section.frame->padding = 1;
    EXPECT_THROW((void)withHeader(9), report::NoRoomFault);
}

TEST(Breaking, TextsThatNobodyReadsTakeOnePageAndCanBeDrawn) {
    Orders orders({1});
    const QString word(65'000, u'M');
    for (const QString& text : {word, QString(word).replace(u"MM"_s, u"M "_s)}) {
        orders.report.section.parts = {Band{.items = {label({.width = 20}, text), label({.x = 20, .width = 5}, text),
                                                      label({.x = 30, .width = 20}, text, report::atTheRight)}}};
        const report::Document document = compose(orders.report);
        ASSERT_EQ(document.pages.size(), 1u);
        EXPECT_EQ(document.pages[0].marks[1].text.count(u'\n'), 9);
        QImage sheet(300, 300, QImage::Format_RGB32);
        QPainter painter(&sheet);
        painter.scale(0.05, 0.05);
        report::PagePainter().draw(painter, document.pages[0]);
    }
}
