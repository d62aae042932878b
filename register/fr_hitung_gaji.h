#pragma once

#include "base/workspace.h"
#include "register/reports/payroll_reports.h"
#include "run/form/fr_isian_hitung_gaji.h"
#include "toolkit/data/client_data_set.h"

#include <functional>
#include <memory>
#include <optional>

class QMenu;

namespace Ui {
class frm_hitung_gaji;
}

/// The register of saved payroll runs: what was saved, by run and employee; opens the run form, deletes runs, prints
/// the ticked ones. It computes nothing.
class Tfrm_hitung_gaji final : public Workspace {
    Q_OBJECT

public:
    Tfrm_hitung_gaji(base::Services& services, QWidget* parent);
    ~Tfrm_hitung_gaji() override;

protected:
    void FormActivate() override;
    void FormClose() override;

private:
    void btn_cariClick();
    void btn_tambahClick();
    void btn_editClick();
    void btn_hapusClick();
    void btn_cetakClick();
    void dbg_mClick();
    void dbg_dClick();

    void RekapPenggajian1Click();
    void Rinciangaji1Click();
    void SlipGaji1Click();

    using MakeReport =
        std::function<std::optional<report::Document>(payroll::PayrollReports&, const payroll::Request&)>;

    void set_up();
    void connect_handlers();
    void add_print_menu();
    [[nodiscard]] QString kondisi() const;
    void open_list();
    void open_employees();
    void close_details();
    void open_details();
    void show_what_is_left();
    void show_sums(const QString& between);
    void show_true_sum();
    /// The runs to print; none, with a message, where none is ticked.
    [[nodiscard]] std::optional<payroll::Request> ticked_runs();
    /// Throws report::NoRoomFault.
    [[nodiscard]] std::optional<report::Document> compose(const payroll::Request& request, const MakeReport& make);
    /// Previews a report under the caption of its menu entry; what makes no document shows nothing.
    void print(const QString& entry, const MakeReport& make);
    void open_form(RunFormTask task);

    std::unique_ptr<Ui::frm_hitung_gaji> m_ui;
    data::SqlQuery sql_m;
    data::SqlQuery sql_d;
    data::SqlQuery sql_sd;
    data::SqlQuery sql_sd2;
    data::ClientDataSet cds_m;
    const QString m_baseSql;
    QMenu* pmn_cetak;
    NamedText txt_jumlah_benar{this, u"txt_jumlah_benar", u"Jumlah semua baris: "};
};
