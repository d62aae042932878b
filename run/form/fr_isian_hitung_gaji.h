#pragma once

#include "base/screen.h"
#include "base/tick_list.h"
#include "run/form/working_copy.h"
#include "run/reading/statements.h"
#include "toolkit/data/mem_table.h"
#include "toolkit/ui/named_text.h"

#include <functional>
#include <memory>

namespace Ui {
class frm_isian_hitung_gaji;
}

/// What the register wants of the run form.
struct RunFormTask {
    enum Mode { New, Edit, View };

    Mode mode = New;
    int process_id = 0;                  ///< the run to edit or view
    std::function<void()> refresh = {};  ///< shows the register's list anew
    std::function<void()> goToLast = {}; ///< makes its last run current
};

/// The screen on which a payroll run is defined, computed, corrected and saved. Nothing reaches the database before
/// the clerk saves; closing drops everything.
class Tfrm_isian_hitung_gaji final : public Screen {
    Q_OBJECT

public:
    Tfrm_isian_hitung_gaji(base::Services& services, RunFormTask task, QWidget* parent);
    ~Tfrm_isian_hitung_gaji() override;

protected:
    void FormActivate() override;
    void resizeEvent(QResizeEvent* event) override;
    /// Esc closes the list of employees first.
    void reject() override;

private:
    void btn_select_allClick();
    void btn_disselect_allClick();
    void btn_invertClick();
    void btn_select_all2Click();
    void btn_disselect_all2Click();
    void btn_invert2Click();
    void chb_empClick();
    void btn_empClick();
    void clb_empClickCheck();
    void btn_sel_allClick();
    void btn_disel_allClick();
    void btn_balikClick();
    void chb_kreditClick();
    void cmb_kreditCloseUp();
    void btn_prosesClick();
    void btn_hitungClick();
    void btn_hapusClick();
    void btn_hapus2Click();
    void btn_simpanClick();

    void set_up();
    void connect_handlers();
    void open_lists();
    void open_run();
    void siapkan_baru();
    void siapkan_ubah();
    void tick_groups(base::TickWish wish);
    void tick_components(base::TickWish wish);
    void dbg_grppilihToggleClick(const QString& text);
    void dbg_kompilihToggleClick(const QString& text);
    void isi_komponen_grup(int grp_id);
    void isi_daftar_karyawan();
    void check_employees(base::TickWish wish);
    void segarkan_rincian();
    [[nodiscard]] run::SessionSelections selections() const;
    [[nodiscard]] run::EmployeeChoice chosen_employees() const;
    [[nodiscard]] run::Notice compute(run::Run& run);
    std::vector<run::RemovedLine> hitung();
    void show_total();
    void show_left_out(std::vector<run::LeftOut> people);
    void list_left_out(const std::vector<run::LeftOut>& people);
    [[nodiscard]] bool cek_nama_proses();
    [[nodiscard]] QString who_and_when(const run::StoredRun& change) const;
    /// True where the run is stored; else the user was told why not.
    [[nodiscard]] bool simpan();
    [[nodiscard]] run::Saved write_run();
    void selesai();
    void save_log(const QString& action);
    void pnl_empPop();
    void pnl_empExit(QWidget* focus);
    void set_read_only();
    void place_panels();

    std::unique_ptr<Ui::frm_isian_hitung_gaji> m_ui;
    const RunFormTask m_task;
    run::WorkingCopy m_copy;
    data::SqlQuery sql_grp;
    data::SqlQuery sql_komp;
    data::ClientDataSet cds_grp;
    data::ClientDataSet cds_komp;
    data::MemTable vir_tb;
    data::MemTable vir_tb2;
    data::MemTable vir_emp;
    std::vector<int> clb_emp_id; ///< the employees behind the entries of clb_emp, in their order
    NamedText m_modeCaptions[3]{{this, u"txt_baru", u"[Data Baru]"},
                                {this, u"txt_ubah", u"[Ubah Data]"},
                                {this, u"txt_lihat", u"[Lihat Data]"}};
    NamedText txt_pemakai_lain{this, u"txt_pemakai_lain", u"komputer lain"};
    NamedText txt_jumlah_benar{this, u"txt_jumlah_benar", u"Jumlah semua baris: "};
    NamedText txt_tanpa_baris{this, u"txt_tanpa_baris", u"Karyawan tanpa baris gaji"};
    NamedText txt_siapa{this, u"txt_siapa", u"Siapa..."};
    NamedText m_whyLeftOut[run::whyLeftOutCount]{
        {this, u"txt_komponen_gagal", u"komponen gagal dihitung"},
        {this, u"txt_tanpa_aturan", u"tidak ada komponen terpilih yang punya aturan"},
        {this, u"txt_potongan_lebih", u"potongan menghabiskan penerimaan"},
        {this, u"txt_tidak_positif", u"jumlah tidak positif"}};
    bool baru_dibuka = true;
};
