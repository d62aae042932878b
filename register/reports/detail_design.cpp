#include "register/reports/designs.h"
#include "register/reports/print_rules.h"

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

constexpr Place kode{.x = 4, .width = 20};
constexpr Place komponen{.x = 26, .width = 64};
constexpr Place keterangan{.x = 93, .width = 70};
constexpr Place faktor{.x = 93, .width = 18};
constexpr Place kondisi{.x = 113, .width = 50};
constexpr Place uang{.x = 166, .width = listWidth - 166};

constexpr report::Look bold{.bold = true};
constexpr report::Look boldNumber{.bold = true, .align = report::Align::Right, .fit = report::Fit::Line};

// The employee's head stands in three columns.
constexpr Column left{.x = 0, .captionWidth = 8, .width = 54};
constexpr Column middle{.x = 56, .captionWidth = 20, .width = 80};
constexpr Column right{.x = 138, .captionWidth = 21, .width = listWidth - 138};

Band whoLine(const report::Captions& captions, const data::DataSet& sql_detail) {
    Band band{.name = u"group"_s, .height = 5.5, .rules = {{.edge = RuledLine::Edge::Top, .x = 0, .width = listWidth}}};
    addValue(band, left, captions[u"ppl_pin"_s], field({}, sql_detail, u"pin"_s));
    addValue(band, middle, captions[u"ppl_nama"_s], field({}, sql_detail, u"nama"_s, bold));
    addValue(band, right, captions[u"ppl_jabatan"_s], field({}, sql_detail, u"func_name"_s));
    return band;
}

Band whereLine(const report::Captions& captions, const data::DataSet& sql_detail) {
    Band band{.name = u"group"_s, .height = 5.5};
    addValue(band, left, captions[u"ppl_nik"_s], field({}, sql_detail, u"nik"_s));
    addValue(band, middle, captions[u"ppl_departemen"_s], field({}, sql_detail, u"level_id"_s));
    addValue(band, right, captions[u"ppl_gaji_diterima"_s], amount({}, sql_detail, u"jml_gaji"_s, boldNumber));
    return band;
}

Band columnHeads(const report::Captions& captions) {
    return {.name = u"group"_s,
            .height = 5.5,
            .items = {label(kode, captions[u"ppl_kode"_s], bold), label(komponen, captions[u"ppl_komponen"_s], bold),
                      label(keterangan, captions[u"ppl_keterangan"_s], bold),
                      label(uang, captions[u"ppl_jumlah_uang"_s], boldNumber)},
            .rules = {{.edge = RuledLine::Edge::Bottom, .x = kode.x, .width = listWidth - kode.x}}};
}

struct ListNames {
    QString line;
    QString summary;
};

report::List componentList(data::DataSet& lines, const ListNames& names, const QString& total) {
    report::Item ppDBT_faktor = field(faktor, lines, u"faktor"_s, report::atTheRight);
    ppDBT_faktor.onPrint = ppDBT_faktorPrint(lines);
    report::Item ppDBT_kondisi = field(kondisi, lines, u"kondisi"_s);
    ppDBT_kondisi.onPrint = ppDBT_kondisiPrint(lines);
    const auto sum = [&lines] { return sumOf(lines, u"jml_uang"_s); };
    return {.rows = &lines,
            .link = u"emp_id_auto"_s,
            .line = {.name = names.line,
                     .items = {field(kode, lines, u"com_kode"_s), field(komponen, lines, u"com_name"_s), ppDBT_faktor,
                               ppDBT_kondisi, amount(uang, lines, u"jml_uang"_s)}},
            .summary = {.name = names.summary,
                        .height = 5.5,
                        .items = {label(komponen, total, bold), amount(uang, sum, boldNumber)},
                        .rules = {{.edge = RuledLine::Edge::Top, .x = uang.x, .width = uang.width}}}};
}

} // namespace

report::Report detailDesign(const Sources& sources, const Wording& wording) {
    const report::Captions& captions = wording.captions;
    const auto header = [wording](const report::PageInfo&) {
        return titleBands(wording.captions[u"ppl_judul_rincian"_s], wording);
    };
    const auto footer = [wording](const report::PageInfo& page) { return std::vector{pageNumberBand(page, wording)}; };
    return {.title = u"Rincian penggajian"_s,
            .master = &sources.sql_detail,
            .header = header,
            .footer = footer,
            .section = {.parts = {whoLine(captions, sources.sql_detail), whereLine(captions, sources.sql_detail),
                                  columnHeads(captions),
                                  componentList(sources.sql_subdetail, {u"earning"_s, u"earnings"_s},
                                                captions[u"ppl_total_penerimaan"_s]),
                                  componentList(sources.sql_subdetail2, {u"deduction"_s, u"deductions"_s},
                                                captions[u"ppl_total_potongan"_s])},
                        .gap = 5}};
}

} // namespace payroll
