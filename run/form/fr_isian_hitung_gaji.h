#pragma once

#include "base/entry_screen.h"
#include "run/form/working_copy.h"
#include "run/reading/statements.h"
#include "toolkit/data/mem_table.h"
#include "toolkit/ui/named_text.h"
#include "toolkit/ui/ticks.h"

#include <functional>
#include <memory>

namespace Ui {
class frm_isian_hitung_gaji;
}

/// What the register wants of the run form.
struct RunFormTask {
    EntryMode mode = EntryMode::New;
    int process_id = 0;                  ///< the run to edit or view
    std::function<void()> refresh = {};  ///< shows the register's list anew
    std::function<void()> goToLast = {}; ///< makes its last run current
};

/// The screen on which a payroll run is defined, computed, corrected and saved. Nothing reaches the database before
/// the clerk saves; closing drops everything.
class Tfrm_isian_hitung_gaji final : public EntryScreen {
    Q_OBJECT

public:
    Tfrm_isian_hitung_gaji(base::Services& services, RunFormTask task, QWidget* parent);
    ~Tfrm_isian_hitung_gaji() override;

protected:
    void openLists() override;
    void openEntry() override;
    void resizeEvent(QResizeEvent* event) override;
    /// Esc closes the list of employees first.
    void reject() override;

private:
    void chb_empClick();
    void btn_empClick();
    void clb_empClickCheck(int ticked);
    void chb_kreditClick();
    void cmb_kreditCloseUp();
    void btn_prosesClick();
    void btn_hitungClick();
    void btn_hapusClick();
    void btn_hapus2Click();
    void btn_simpanClick();

    void set_up();
    void connect_handlers();
    void siapkan_baru();
    void siapkan_ubah();
    void tick_groups(TickWish wish);
    void tick_components(TickWish wish);
    void dbg_grppilihToggleClick(const QString& text);
    void dbg_kompilihToggleClick(const QString& text);
    void isi_komponen_grup(int grp_id);
    void isi_daftar_karyawan();
    void segarkan_rincian();
    [[nodiscard]] run::SessionSelections selections() const;
    [[nodiscard]] run::EmployeeChoice chosen_employees() const;
    [[nodiscard]] run::Notice compute(run::Run& run);
    std::vector<run::RemovedLine> hitung();
    void show_total();
    void show_left_out(std::vector<run::LeftOut> people);
    void list_left_out(const std::vector<run::LeftOut>& people);
    [[nodiscard]] QString who_and_when(const run::StoredRun& change) const;
    /// True where the run is stored; else the user was told why not.
    [[nodiscard]] bool simpan();
    [[nodiscard]] run::Saved write_run();
    void selesai();
    void save_log();
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
    NamedText txt_pemakai_lain{this, u"txt_pemakai_lain", u"komputer lain"};
    NamedText txt_jumlah_benar{this, u"txt_jumlah_benar", u"Jumlah semua baris: "};
    NamedText txt_tanpa_baris{this, u"txt_tanpa_baris", u"Karyawan tanpa baris gaji"};
    NamedText txt_siapa{this, u"txt_siapa", u"Siapa..."};
    NamedText m_whyLeftOut[run::whyLeftOutCount]{
        {this, u"txt_komponen_gagal", u"komponen gagal dihitung"},
        {this, u"txt_tanpa_aturan", u"tidak ada komponen terpilih yang punya aturan"},
        {this, u"txt_potongan_lebih", u"potongan menghabiskan penerimaan"},
        {this, u"txt_tidak_positif", u"jumlah tidak positif"}};
};
