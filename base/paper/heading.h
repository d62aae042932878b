#pragma once

#include "toolkit/report/captions.h"
#include "toolkit/report/report.h"

namespace base::paper {

/// What the papers say beside their data.
struct Heading {
    QString ppl_nama_persh;
    QString ppl_tgl_aw; ///< the first and last day asked for, as text
    QString ppl_tgl_ak;
    QString ppl_user;
    QString tgl_cetak;
};

struct Wording {
    const report::Captions& captions;
    const Heading& heading;
};

/// Where a caption, " : " and a value stand beside each other; millimetres.
struct Column {
    double x = 0;
    double captionWidth = 0;
    double width = 0; ///< of all three
};

/// Where the value of the column stands.
[[nodiscard]] report::Place valuePlace(const Column& column);
void addCaption(report::Band& band, const Column& column, const QString& caption, report::Look look = {});
void addValue(report::Band& band, const Column& column, const QString& caption, report::Item value);
void addPeriod(report::Band& band, const Column& column, const Wording& wording);

/// Title, company and period at the top of the lists.
[[nodiscard]] std::vector<report::Band> titleBands(const QString& title, const Wording& wording);
/// "Halaman : n dari : m Tgl. Cetak : ... Oleh : ..." at the bottom of the lists.
[[nodiscard]] report::Band pageNumberBand(const report::PageInfo& page, const Wording& wording);

inline constexpr double listWidth = 200.66; ///< of 8.5 inches without the margins

} // namespace base::paper
