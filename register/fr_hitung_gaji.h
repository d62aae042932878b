#pragma once

#include "frame/base/workspace.h"
#include "run/form/fr_isian_hitung_gaji.h"
#include "toolkit/data/client_data_set.h"

#include <memory>

class QMenu;

namespace Ui {
class frm_hitung_gaji;
}

/// The register of saved payroll runs: what was saved, by run and employee; opens the run form, deletes runs, prints
/// the ticked ones. It computes nothing.
class Tfrm_hitung_gaji final : public Workspace {
    Q_OBJECT

public:
    Tfrm_hitung_gaji(frame::Services& services, QWidget* parent);
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
    void btn_select_allClick();
    void btn_disselect_allClick();
    void btn_invertClick();
    void dbg_mClick();
    void dbg_dClick();

    void set_up();
    void connect_handlers();
    void add_print_menu();
    [[nodiscard]] QString kondisi() const;
    void open_list();
    void open_employees();
    void open_details();
    void show_sums(const QString& between);
    void delete_current_run();
    void open_form(RunFormTask task);

    std::unique_ptr<Ui::frm_hitung_gaji> m_ui;
    data::SqlQuery sql_m;
    data::SqlQuery sql_d;
    data::SqlQuery sql_sd;
    data::SqlQuery sql_sd2;
    data::ClientDataSet cds_m;
    const QString m_baseSql;
    QMenu* pmn_cetak;
};
