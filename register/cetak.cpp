// The register's menu of papers.

#include "register/fr_hitung_gaji.h"

#include "base/paper/captions.h"
#include "base/tick_list.h"
#include "register/reports/captions.h"
#include "register/reports/statements.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/report/fr_preview.h"
#include "toolkit/report/report.h"
#include "toolkit/ui/caption.h"
#include "toolkit/ui/handler.h"
#include "toolkit/ui/wait_cursor.h"
#include "ui_fr_hitung_gaji.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

const base::MessageText pilih_data{u"frm_hitung_gaji"_s, 3, u"Pilih data yang akan dicetak."_s};
const base::MessageText tidak_muat{u"frm_hitung_gaji"_s, 5,
                                   u"Judul dan kaki halaman terlalu tinggi, tidak ada tempat untuk isi laporan."_s};

} // namespace

void Tfrm_hitung_gaji::add_print_menu() {
    using Self = Tfrm_hitung_gaji;
    pmn_cetak->setObjectName(u"pmn_cetak"_s);
    const auto add = [this](const QString& name, const QString& text, void (Self::*handler)()) {
        QAction* entry = pmn_cetak->addAction(text);
        entry->setObjectName(name);
        entry->setEnabled(handler != nullptr);
        if (handler)
            onEvent(entry, &QAction::triggered, this, handler);
    };
    add(u"RekapPenggajian1"_s, u"Rekap penggajian"_s, &Self::RekapPenggajian1Click);
    add(u"Rinciangaji1"_s, u"Rincian penggajian"_s, &Self::Rinciangaji1Click);
    add(u"SlipGaji1"_s, u"Slip penggajian"_s, &Self::SlipGaji1Click);
    add(u"ExporttoExcel1"_s, u"Export to Excel (Rincian)"_s, nullptr);
    pmn_cetak->addSeparator();
    add(u"ExporttoExcel2"_s, u"Export to Excel (Rincian) 2"_s, nullptr);
}

void Tfrm_hitung_gaji::btn_cetakClick() {
    pmn_cetak->popup(m_ui->btn_cetak->mapToGlobal(QPoint(0, m_ui->btn_cetak->height())));
}

std::optional<payroll::Request> Tfrm_hitung_gaji::ticked_runs() {
    QList<qint64> processIds;
    fault::dropFault("daftar perhitungan yang dicentang",
                     [&] { base::forEachTicked(cds_m, [&] { processIds << cds_m.integer(u"process_id"); }); });
    if (!processIds.isEmpty())
        return payroll::Request{payroll::processFilter(processIds), m_ui->dtp_tgl_aw->date(),
                                m_ui->dtp_tgl_akh->date()};
    m_services.messages.inform(this, pilih_data);
    return std::nullopt;
}

std::optional<report::Document> Tfrm_hitung_gaji::compose(const payroll::Request& request, const MakeReport& make) {
    const WaitCursor wait;
    const report::Captions captions = base::paper::captionsOf(
        m_services.session, objectName(), payroll::defaultCaptions(), m_services.language.lang_column());
    payroll::PayrollReports reports(m_services.session, captions);
    return make(reports, request);
}

void Tfrm_hitung_gaji::print(const QString& entry, const MakeReport& make) {
    const std::optional<payroll::Request> request = ticked_runs();
    if (!request)
        return;
    try {
        std::optional<report::Document> document = compose(*request, make);
        if (!document)
            return;
        Tfrm_preview& preview = Tfrm_preview::open(std::move(*document), window());
        preview.setWindowTitle(captionText(pmn_cetak->findChild<QAction*>(entry)->text()));
        m_services.language.ApplyLanguage(preview);
    } catch (const report::NoRoomFault&) {
        m_services.messages.error(this, tidak_muat);
    }
}

void Tfrm_hitung_gaji::RekapPenggajian1Click() {
    print(u"RekapPenggajian1"_s, [](auto& reports, const auto& request) { return reports.RekapPenggajian(request); });
}

void Tfrm_hitung_gaji::Rinciangaji1Click() {
    print(u"Rinciangaji1"_s, [](auto& reports, const auto& request) { return reports.RincianPenggajian(request); });
}

void Tfrm_hitung_gaji::SlipGaji1Click() {
    print(u"SlipGaji1"_s, [](auto& reports, const auto& request) { return reports.SlipGaji(request); });
}
