#include "toolkit/report/block.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace report {

namespace {

// Sums of lengths are off by less.
constexpr double tinyMm = 0.001;

struct FilledPage {
    Page page;
    int records = 0;
};

/// Puts what the records print onto pages, one below the other.
class Pages final {
public:
    /// body: the part of the paper between header and footer.
    Pages(const Section& section, QRectF body) : m_section(section), m_body(body) {}

    void add(Block block, const Printing& frame);
    [[nodiscard]] std::vector<FilledPage> take() { return std::move(m_pages); }

private:
    [[nodiscard]] double padding() const { return m_section.frame ? m_section.frame->padding : 0; }
    /// What a page still takes inside a frame.
    [[nodiscard]] double room() const { return m_body.height() - m_used - 2 * padding(); }
    [[nodiscard]] bool mustStartPage(const Block& block) const;
    void startPage();
    /// Takes the marks from the block.
    void addPiece(Block& block, double from, double to, const Printing& frame);

    const Section& m_section;
    QRectF m_body;
    double m_used = 0;
    int m_records = 0;
    std::vector<FilledPage> m_pages{FilledPage{}};
};

void Pages::startPage() {
    m_pages.push_back({.page = {}, .records = m_records});
    m_used = 0;
}

bool Pages::mustStartPage(const Block& block) const {
    return m_used > 0 && (m_section.start == Section::Start::NewPage || block.height > room() + tinyMm);
}

void Pages::add(Block block, const Printing& frame) {
    if (mustStartPage(block))
        startPage();
    m_pages.back().records = ++m_records;
    double from = 0;
    for (; block.height - from > room() + tinyMm; startPage()) {
        const double to = block.cut(from, from + room());
        addPiece(block, from, to, frame);
        from = to;
    }
    addPiece(block, from, block.height, frame);
    m_used += m_section.gap;
}

void Pages::addPiece(Block& block, double from, double to, const Printing& frame) {
    std::vector<Mark>& marks = m_pages.back().page.marks;
    const double top = m_body.top() + m_used;
    const double height = to - from + 2 * padding();
    if (m_section.frame && frame.visible)
        marks.push_back({.kind = Mark::Kind::Frame,
                         .band = m_section.frame->name,
                         .box = {m_body.left(), top, m_body.width(), height},
                         .fill = frame.fill});
    for (Mark& mark : block.marks)
        if (mark.box.top() >= from - tinyMm && mark.box.top() < to - tinyMm) {
            marks.push_back(std::move(mark));
            marks.back().box.translate(m_body.left() + padding(), top + padding() - from);
        }
    m_used += height;
}

int linesIn(double height) {
    return std::max(1, int(height / lineMm));
}

Block pageBands(const PageBands& bands, const PageInfo& info, TypeSetter& type) {
    constexpr int mostLines = 100;
    return bands ? BlockPrinter(type, mostLines).print(bands(info)) : Block{};
}

void addMarks(Page& page, Block bands, QPointF at) {
    for (Mark& mark : bands.marks) {
        mark.box.translate(at);
        page.marks.push_back(std::move(mark));
    }
}

std::vector<FilledPage> body(const Report& report, QRectF body, TypeSetter& type) {
    const double padding = report.section.frame ? report.section.frame->padding : 0;
    const double room = body.height() - 2 * padding;
    // Below a line's height the pages would never come to an end.
    if (room < lineMm - tinyMm)
        throw NoRoomFault();
    Pages pages(report.section, body);
    BlockPrinter printer(type, linesIn(room));
    data::DataSet& master = *report.master;
    const data::ViewsOff quiet(master);
    const int row = master.row();
    for (master.first(); !master.isEof(); master.next()) {
        Printing frame;
        if (report.section.frame && report.section.frame->onPrint)
            report.section.frame->onPrint(frame);
        pages.add(printer.print(report.section.parts, master), frame);
    }
    master.goToRow(row);
    return pages.take();
}

} // namespace

Document compose(const Report& report) {
    TypeSetter type;
    const Paper& paper = report.paper;
    const double headerHeight = pageBands(report.header, {}, type).height;
    const double footerTop = paper.height - paper.margin - pageBands(report.footer, {}, type).height;
    const double bodyTop = paper.margin + headerHeight;
    std::vector<FilledPage> filled =
        body(report, {paper.margin, bodyTop, paper.width - 2 * paper.margin, footerTop - bodyTop}, type);

    Document document{.title = report.title, .paper = paper, .pages = {}};
    for (FilledPage& each : filled) {
        const PageInfo info{
            .number = int(document.pages.size()) + 1, .count = int(filled.size()), .records = each.records};
        addMarks(each.page, pageBands(report.header, info, type), {paper.margin, paper.margin});
        addMarks(each.page, pageBands(report.footer, info, type), {paper.margin, footerTop});
        document.pages.push_back(std::move(each.page));
    }
    return document;
}

} // namespace report
