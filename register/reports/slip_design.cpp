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

constexpr double padding = 2;
constexpr double innerWidth = listWidth - 2 * padding;
constexpr double halfWidth = 96.3;
constexpr double rightX = innerWidth - halfWidth;
constexpr double middleX = innerWidth / 2;

// A line of either list, counted from the left edge of its half.
constexpr Place kode{.x = 0, .width = 10};
constexpr Place komponen{.x = 11, .width = 27.5};
constexpr Place faktor{.x = 39, .width = 16.8};
constexpr Place kondisi{.x = 56.6, .width = 16.8};
constexpr Place sama{.x = 73.6, .width = 2.6};
constexpr Place uang{.x = 76.2, .width = halfWidth - 76.2};
constexpr Place jumlah{.x = 0, .width = 70};

constexpr report::Look bold{.bold = true};
constexpr report::Look boldNumber{.bold = true, .align = report::Align::Right, .fit = report::Fit::Line};
constexpr report::Look boldNumberAtTheLeft{.bold = true, .fit = report::Fit::Line};
constexpr report::Look centred{.align = report::Align::Centre};
constexpr report::Look oneLine{.fit = report::Fit::Line};

constexpr Column leftColumn{.x = 0, .captionWidth = 27, .width = halfWidth};
constexpr Column rightColumn{.x = rightX, .captionWidth = 27, .width = halfWidth};

struct Employee {
    const data::DataSet& sql_detail;
    [[nodiscard]] report::Item operator()(const QString& name, report::Look look = {}) const {
        return field({}, sql_detail, name, look);
    }
};

std::vector<report::Part> head(const Sources& sources, const Wording& wording) {
    const report::Captions& captions = wording.captions;
    const Employee employee{sources.sql_detail};
    Band first{.name = u"head"_s};
    addValue(first, leftColumn, captions[u"ppl_nama_perusahaan"_s], label({}, wording.heading.ppl_nama_persh));
    addValue(first, rightColumn, captions[u"ppl_nik"_s], employee(u"nik"_s));
    Band second{.name = u"head"_s};
    addPeriod(second, leftColumn, wording);
    addValue(second, rightColumn, captions[u"ppl_nama_karyawan_slip"_s], employee(u"nama"_s, bold));
    Band third{.name = u"head"_s, .height = 6};
    addValue(third, leftColumn, captions[u"ppl_departemen"_s], employee(u"dept_name"_s));
    addValue(third, rightColumn, captions[u"ppl_jabatan"_s], employee(u"func_name"_s));
    return {first, second, third};
}

struct ListWords {
    QString band;
    QString head;
    QString total;
};

report::List componentList(data::DataSet& lines, const ListWords& words, const report::Hook& kodePrint) {
    report::Item ppDBT_kode = field(kode, lines, u"com_kode"_s);
    ppDBT_kode.onPrint = kodePrint;
    report::Item ppDBT_faktor = field(faktor, lines, u"faktor"_s, report::atTheRight);
    ppDBT_faktor.onPrint = ppDBT_faktorPrint(lines);
    report::Item ppDBT_kondisi = field(kondisi, lines, u"kondisi"_s);
    ppDBT_kondisi.onPrint = ppDBT_kondisiPrint(lines);
    const auto sum = [&lines] { return sumOf(lines, u"jml_uang"_s); };
    return {.rows = &lines,
            .link = u"emp_id_auto"_s,
            .head = {.name = words.band,
                     .height = 5.1,
                     .items = {label({.x = 0, .width = halfWidth}, words.head, bold)},
                     .rules = {{.edge = RuledLine::Edge::Bottom, .x = 0, .width = halfWidth}}},
            .line = {.name = words.band,
                     .items = {ppDBT_kode, field(komponen, lines, u"com_name"_s), ppDBT_faktor, ppDBT_kondisi,
                               label(sama, u"="_s, oneLine), amount(uang, lines, u"jml_uang"_s)}},
            .summary = {.name = words.band,
                        .items = {label(jumlah, words.total, bold), amount(uang, sum, boldNumber)},
                        .rules = {{.edge = RuledLine::Edge::Top, .x = 0, .width = halfWidth}}}};
}

report::SideBySide lists(const Sources& sources, const report::Captions& captions) {
    return {
        .left = componentList(sources.sql_subdetail,
                              {u"earning"_s, captions[u"ppl_penerimaan"_s], captions[u"ppl_total_penerimaan_slip"_s]},
                              ppRegion4Print(sources.sql_subdetail)),
        .right = componentList(sources.sql_subdetail2,
                               {u"deduction"_s, captions[u"ppl_potongan"_s], captions[u"ppl_total_potongan_slip"_s]},
                               ppRegion1Print(sources.sql_subdetail)),
        .rightX = rightX,
        .nextPlace = ppSubReport3Print};
}

/// The foot: a stub for the company at the left, the employee's receipt at the right.
class Foot final {
public:
    Foot(const Sources& sources, const Wording& wording) : m_sources(sources), m_wording(wording) {}

    [[nodiscard]] std::vector<report::Part> bands() const;

private:
    // Two of these lines are the room for a signature.
    static constexpr double lineHeight = 5.1;
    static constexpr double signerWidth = 45;

    static Band line() {
        return {.name = u"foot"_s,
                .height = lineHeight,
                .rules = {{.edge = RuledLine::Edge::Left, .x = middleX, .width = 0}}};
    }
    [[nodiscard]] const QString& caption(const QString& name) const { return m_wording.captions[name]; }
    void addStub(Band& band, const QString& captionName, const QString& fieldName) const;
    void addNetPay(Band& band, const Column& column) const;
    void addPrintTime(Band& band) const;
    static void addSigners(Band& band, report::Item giver, report::Item taker);

    const Sources& m_sources;
    const Wording& m_wording;
};

void Foot::addStub(Band& band, const QString& captionName, const QString& fieldName) const {
    addValue(band, leftColumn, caption(captionName), field({}, m_sources.sql_detail, fieldName));
}

// The caption ends in a colon of its own.
void Foot::addNetPay(Band& band, const Column& column) const {
    band.items.push_back(
        label({.x = column.x, .width = valuePlace(column).x - column.x}, caption(u"ppl_gaji_yang_diterima"_s), bold));
    band.items.push_back(amount(valuePlace(column), m_sources.sql_detail, u"jml_gaji"_s, boldNumberAtTheLeft));
}

void Foot::addPrintTime(Band& band) const {
    addValue(band, rightColumn, caption(u"ppl_tgl_cetak"_s), label({}, m_wording.heading.tgl_cetak, oneLine));
}

void Foot::addSigners(Band& band, report::Item giver, report::Item taker) {
    giver.place = {.x = rightX, .width = signerWidth};
    taker.place = {.x = innerWidth - signerWidth, .width = signerWidth};
    giver.look = taker.look = centred;
    band.items.push_back(std::move(giver));
    band.items.push_back(std::move(taker));
}

std::vector<report::Part> Foot::bands() const {
    std::vector<Band> lines(7, line());
    lines[0].rules.push_back({.edge = RuledLine::Edge::Top, .x = 0, .width = innerWidth});
    addNetPay(lines[0], leftColumn);
    addPrintTime(lines[0]);
    addValue(lines[1], leftColumn, caption(u"ppl_nama_perusahaan"_s), label({}, m_wording.heading.ppl_nama_persh));
    addNetPay(lines[1], rightColumn);
    addPeriod(lines[2], leftColumn, m_wording);
    addSigners(lines[2], label({}, caption(u"ppl_diserahkan"_s)), label({}, caption(u"ppl_diterima"_s)));
    addStub(lines[3], u"ppl_departemen"_s, u"dept_name"_s);
    addStub(lines[4], u"ppl_nik"_s, u"nik"_s);
    addStub(lines[5], u"ppl_nama_karyawan_slip"_s, u"nama"_s);
    for (const double x : {rightX, innerWidth - signerWidth})
        lines[5].rules.push_back({.edge = RuledLine::Edge::Top, .x = x, .width = signerWidth});
    addSigners(lines[5], label({}, m_wording.heading.ppl_user), field({}, m_sources.sql_detail, u"nama"_s));
    addStub(lines[6], u"ppl_jabatan"_s, u"func_name"_s);
    addPrintTime(lines[6]);
    return {lines.begin(), lines.end()};
}

} // namespace

report::Report slipDesign(const Sources& sources, const Wording& wording) {
    std::vector<report::Part> parts = head(sources, wording);
    parts.emplace_back(lists(sources, wording.captions));
    for (report::Part& band : Foot(sources, wording).bands())
        parts.push_back(std::move(band));
    const auto frame = [&slips = sources.sql_detail](report::Printing& slip) {
        slip.fill = ppRegion3Print(slips.row());
    };
    return {.title = u"Slip penggajian"_s,
            .master = &sources.sql_detail,
            .section = {.parts = std::move(parts),
                        .frame = report::Frame{.name = u"slip"_s, .padding = padding, .onPrint = frame},
                        .gap = 3}};
}

} // namespace payroll
