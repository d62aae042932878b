#include "base/paper/heading.h"

using namespace Qt::StringLiterals;
using report::Band;
using report::Fit;
using report::Item;
using report::label;
using report::Look;

namespace base::paper {

namespace {

constexpr double colonWidth = 3;
constexpr double dateWidth = 14.4; // ten characters of the text size, with a little room
constexpr Look oneLine{.fit = Fit::Line};

} // namespace

report::Place valuePlace(const Column& column) {
    const double left = column.captionWidth + colonWidth;
    return {.x = column.x + left, .width = column.width - left};
}

void addCaption(Band& band, const Column& column, const QString& caption, Look look) {
    band.items.push_back(label({.x = column.x, .width = column.captionWidth}, caption, look));
    band.items.push_back(label({.x = column.x + column.captionWidth, .width = colonWidth}, u" : "_s, oneLine));
}

void addValue(Band& band, const Column& column, const QString& caption, Item value) {
    addCaption(band, column, caption);
    value.place = valuePlace(column);
    band.items.push_back(std::move(value));
}

void addPeriod(Band& band, const Column& column, const Wording& wording) {
    addCaption(band, column, wording.captions[u"ppl_periode"_s]);
    const double x = valuePlace(column).x;
    constexpr double betweenWidth = 5.4;
    const auto put = [&](double at, double width, const QString& text) {
        band.items.push_back(label({.x = x + at, .width = width}, text, oneLine));
    };
    put(0, dateWidth, wording.heading.ppl_tgl_aw);
    put(dateWidth, betweenWidth, wording.captions[u"ppl_sampai_dengan"_s]);
    put(dateWidth + betweenWidth, dateWidth, wording.heading.ppl_tgl_ak);
}

std::vector<Band> titleBands(const QString& title, const Wording& wording) {
    constexpr Column column{.x = 0, .captionWidth = 28, .width = listWidth};
    Band first{.name = u"header"_s, .height = 8};
    first.items.push_back(label({.x = 0, .width = listWidth}, title, {.points = 12, .bold = true}));
    Band company{.name = u"header"_s};
    addValue(company, column, wording.captions[u"ppl_nama_perusahaan"_s], label({}, wording.heading.ppl_nama_persh));
    Band period{.name = u"header"_s, .height = 7};
    addPeriod(period, column, wording);
    return {first, company, period};
}

Band pageNumberBand(const report::PageInfo& page, const Wording& wording) {
    const report::Captions& captions = wording.captions;
    Band band{.name = u"footer"_s, .rules = {{.edge = report::RuledLine::Edge::Top, .x = 0, .width = listWidth}}};
    const auto number = [](int value) { return label({}, QString::number(value), oneLine); };
    addValue(band, {.x = 0, .captionWidth = 13, .width = 28}, captions[u"ppl_halaman"_s], number(page.number));
    addValue(band, {.x = 28, .captionWidth = 7, .width = 24}, captions[u"ppl_dari"_s], number(page.count));
    addValue(band, {.x = 62, .captionWidth = 16, .width = 54}, captions[u"ppl_tgl_cetak"_s],
             label({}, wording.heading.tgl_cetak, oneLine));
    addValue(band, {.x = 126, .captionWidth = 8, .width = 74}, captions[u"ppl_oleh"_s],
             label({}, wording.heading.ppl_user));
    return band;
}

} // namespace base::paper
