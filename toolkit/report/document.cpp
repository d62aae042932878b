#include "toolkit/report/document.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace report {

namespace {

QString millimetres(double value) {
    return QString::number(value, 'f', 1);
}

QString quoted(QString text) {
    text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s);
    return u'"' + text + u'"';
}

QString line(const Mark& mark) {
    QStringList words{mark.band, millimetres(mark.box.x()), millimetres(mark.box.y()), quoted(mark.text)};
    if (mark.look.bold)
        words << u"bold"_s;
    if (mark.look.underline)
        words << u"underline"_s;
    if (mark.kind == Mark::Kind::Frame)
        words << u"box"_s;
    if (mark.fill.isValid())
        words << u"fill "_s + mark.fill.name();
    return words.join(u' ');
}

/// Tenths of a millimetre: what stands on one line may differ by less.
bool isReadBefore(const Mark* a, const Mark* b) {
    const auto place = [](const Mark* mark) {
        return std::pair(std::lround(mark->box.y() * 10), std::lround(mark->box.x() * 10));
    };
    return place(a) < place(b);
}

} // namespace

QStringList textLines(const Page& page) {
    std::vector<const Mark*> shown;
    for (const Mark& mark : page.marks)
        if (mark.kind == Mark::Kind::Frame || !mark.text.isEmpty())
            shown.push_back(&mark);
    std::ranges::stable_sort(shown, isReadBefore);
    QStringList lines;
    for (const Mark* mark : shown)
        lines << line(*mark);
    return lines;
}

QStringList textLines(const Document& document) {
    QStringList lines;
    for (size_t i = 0; i < document.pages.size(); ++i)
        lines << u"page %1 of %2 %3x%4 mm"_s.arg(i + 1)
                     .arg(document.pages.size())
                     .arg(millimetres(document.paper.width), millimetres(document.paper.height))
              << textLines(document.pages[i]);
    return lines;
}

} // namespace report
