#include "register/reports/designs.h"

using namespace Qt::StringLiterals;
using report::amount;
using report::Band;
using report::field;
using report::label;
using report::Place;
using report::RuledLine;
using report::sumOf;

namespace payroll {

using namespace base::paper;

namespace {

// Widths of the columns; each leaves two millimetres to the next.
constexpr Place pin{.x = 0, .width = 19};
constexpr Place nik{.x = 21, .width = 24};
constexpr Place nama{.x = 47, .width = 55};
constexpr Place jabatan{.x = 104, .width = 35};
constexpr Place cabang{.x = 141, .width = 32};
constexpr Place jumlah{.x = 175, .width = listWidth - 175};

constexpr report::Look headLook{.bold = true};
constexpr report::Look numberHeadLook{.bold = true, .align = report::Align::Right};

Band columnHeads(const report::Captions& captions) {
    return {.name = u"header"_s,
            .height = 5.5,
            .items = {label(pin, captions[u"ppl_pin"_s], headLook), label(nik, captions[u"ppl_nik"_s], headLook),
                      label(nama, captions[u"ppl_nama_karyawan"_s], headLook),
                      label(jabatan, captions[u"ppl_jabatan"_s], headLook),
                      label(cabang, captions[u"ppl_cabang"_s], headLook),
                      label(jumlah, captions[u"ppl_jumlah_gaji"_s], numberHeadLook)},
            .rules = {{.edge = RuledLine::Edge::Top, .x = 0, .width = listWidth},
                      {.edge = RuledLine::Edge::Bottom, .x = 0, .width = listWidth}}};
}

Band employeeLine(const data::DataSet& sql_detail) {
    return {.name = u"detail"_s,
            .items = {field(pin, sql_detail, u"pin"_s), field(nik, sql_detail, u"nik"_s),
                      field(nama, sql_detail, u"nama"_s), field(jabatan, sql_detail, u"func_name"_s),
                      field(cabang, sql_detail, u"cab_name"_s), amount(jumlah, sql_detail, u"jml_gaji"_s)}};
}

Band totalLine(const QString& caption, double total) {
    constexpr report::Look bold{.bold = true, .align = report::Align::Right, .fit = report::Fit::Line};
    return {.name = u"footer"_s,
            .height = 6,
            .items = {label(cabang, caption, bold), report::amount(
                                                        jumlah, [total] { return total; }, bold)},
            .rules = {{.edge = RuledLine::Edge::Top, .x = 0, .width = listWidth}}};
}

} // namespace

report::Report recapDesign(const Sources& sources, const Wording& wording) {
    data::DataSet& sql_detail = sources.sql_detail;
    const auto header = [wording](const report::PageInfo&) {
        std::vector<Band> bands = titleBands(wording.captions[u"ppl_judul_rekap"_s], wording);
        bands.push_back(columnHeads(wording.captions));
        return bands;
    };
    const auto footer = [wording, &sql_detail](const report::PageInfo& page) {
        return std::vector{
            totalLine(wording.captions[u"ppl_total_gaji"_s], sumOf(sql_detail, u"jml_gaji"_s, page.records)),
            pageNumberBand(page, wording)};
    };
    return {.title = u"Rekap penggajian"_s,
            .master = &sql_detail,
            .header = header,
            .footer = footer,
            .section = {.parts = {employeeLine(sql_detail)}}};
}

} // namespace payroll
