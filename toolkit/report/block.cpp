#include "toolkit/report/block.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace report {

namespace {

// Far below what is seen, far above what sums of lengths are off by.
constexpr double tinyMm = 0.001;
// A line at the bottom belongs to its band, also where the page ends there.
constexpr double bottomRuleMm = 0.1;

// A page of small print holds less; setting and drawing take longer with the square of the length.
constexpr qsizetype mostOnAPage = 10'000;
constexpr qsizetype mostInALine = 1000;
const QChar ellipsis(0x2026);

QString shortened(const QString& text, qsizetype most) {
    if (text.size() <= most)
        return text;
    return text.left(text[most - 1].isHighSurrogate() ? most - 1 : most) + ellipsis;
}

QString firstLines(const QString& text, int lines) {
    qsizetype end = -1;
    for (int line = 0; line < lines; ++line)
        if ((end = text.indexOf(u'\n', end + 1)) < 0)
            return text;
    return text.left(end) + ellipsis;
}

double grownHeight(const Band& band, double needed) {
    return band.height + std::ceil(std::max(0.0, needed - band.height - tinyMm) / lineMm) * lineMm;
}

} // namespace

double Block::cut(double top, double limit) const {
    const auto isTorn = [this](double y) {
        return std::ranges::any_of(
            strips, [y](const Strip& strip) { return strip.top < y - tinyMm && strip.bottom > y + tinyMm; });
    };
    double best = top;
    for (const Strip& strip : strips)
        if (strip.bottom > best && strip.bottom <= limit + tinyMm && !isTorn(strip.bottom))
            best = strip.bottom;
    return best > top ? best : limit;
}

Block BlockPrinter::print(const std::vector<Part>& parts, const data::DataSet& master) {
    m_master = &master;
    m_block = {};
    for (const Part& each : parts)
        m_block.height = part(each, m_block.height);
    return std::exchange(m_block, {});
}

Block BlockPrinter::print(const std::vector<Band>& bands) {
    m_block = {};
    for (const Band& each : bands)
        m_block.height += band(each, {0, m_block.height});
    return std::exchange(m_block, {});
}

double BlockPrinter::part(const Part& part, double y) {
    if (const auto* single = std::get_if<Band>(&part))
        return y + band(*single, {0, y});
    if (const auto* rows = std::get_if<List>(&part))
        return list(*rows, {0, y}).bottom;
    return sideBySide(std::get<SideBySide>(part), y);
}

double BlockPrinter::sideBySide(const SideBySide& lists, double y) {
    const Printed left = list(lists.left, {0, y});
    const Printed right = list(lists.right, {lists.rightX, y});
    const double lowest = std::max(left.bottom, right.bottom);
    return lists.nextPlace ? std::max(lowest, left.summaryTop + lists.nextPlace(left.lines, right.lines)) : lowest;
}

BlockPrinter::Printed BlockPrinter::list(const List& list, QPointF at) {
    data::DataSet& rows = *list.rows;
    const data::ViewsOff quiet(rows);
    rows.setFilter(list.link, m_master->value(list.link));
    double y = at.y() + band(list.head, at);
    for (rows.first(); !rows.isEof(); rows.next())
        y += band(list.line, {at.x(), y});
    const double bottom = y + band(list.summary, {at.x(), y});
    return {.lines = rows.recordCount(), .summaryTop = y, .bottom = bottom};
}

double BlockPrinter::band(const Band& band, QPointF at) {
    double needed = 0;
    for (const Item& each : band.items)
        needed = std::max(needed, item(each, band.name, at));
    const double height = grownHeight(band, needed);
    rules(band, {at.x(), at.y(), 0, height});
    if (height > 0)
        m_block.strips.push_back({at.y(), at.y() + height});
    return height;
}

double BlockPrinter::item(const Item& item, const QString& band, QPointF at) {
    Printing printing{.text = item.text ? item.text() : QString(), .underline = item.look.underline};
    if (item.onPrint)
        item.onPrint(printing);
    if (!printing.visible || printing.text.isEmpty())
        return 0;
    Look look = item.look;
    look.underline = printing.underline;
    const Place& place = item.place;
    const bool wraps = look.fit == Fit::Wrap;
    QString text = shortened(printing.text, wraps ? mostOnAPage : mostInALine).replace(u'\n', u' ');
    if (wraps)
        text = firstLines(m_type.wrapped(text, look, place.width), m_lines);
    const double height = double(text.count(u'\n') + 1) * lineMm;
    m_block.marks.push_back({.band = band,
                             .box = {at.x() + place.x, at.y() + place.y, place.width, height},
                             .text = text,
                             .look = look,
                             .fill = printing.fill});
    return place.y + height;
}

void BlockPrinter::rules(const Band& band, const QRectF& box) {
    for (const RuledLine& rule : band.rules) {
        QRectF line(box.x() + rule.x, box.y(), rule.width, 0);
        if (rule.edge == RuledLine::Edge::Bottom)
            line.moveTop(box.bottom() - bottomRuleMm);
        if (rule.edge == RuledLine::Edge::Left)
            line.setHeight(box.height());
        m_block.marks.push_back({.kind = Mark::Kind::Rule, .band = band.name, .box = line});
    }
}

} // namespace report
