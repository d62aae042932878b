#include "run/form/fr_isian_hitung_gaji.h"

#include "run/reading/compute.h"
#include "toolkit/data/clear_data_set.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/number_text.h"
#include "toolkit/ui/busy_screen.h"
#include "toolkit/ui/handler.h"
#include "ui_fr_isian_hitung_gaji.h"

#include <QApplication>
#include <QLocale>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int defaultPeriodDays = 30;

const QString formName = u"frm_isian_hitung_gaji"_s;
const base::MessageText nama_kosong{formName, 1, u"Nama perhitungan gaji harus diisi."_s};
const base::MessageText lebih_200{formName, 2, u"Data pilih karyawan maksimal berisi 200 karyawan."_s};
const base::MessageText tidak_ada_karyawan{formName, 3, u"Tidak ada karyawan yang dipilih"_s};
const base::MessageText sudah_dihapus{formName, 4,
                                      u"Perhitungan gaji ini sudah dihapus di tempat lain. Tidak ada yang disimpan."_s};
const base::MessageText diubah{
    formName, 5, u"Perhitungan gaji ini sudah diubah oleh %1 sejak dibuka. Ganti perubahan itu dengan isian ini?"_s};
const base::MessageText tidak_diketahui{
    formName, 6,
    u"Hubungan dengan server terputus saat menyimpan. Belum diketahui apakah "
    "perhitungan gaji ini tersimpan; simpan sekali lagi bila server sudah menjawab."_s};

/// The groups that a session sees: all, or those with an employee of its branch.
QString groupStatement(const base::Branch& session_cab_id) {
    if (!session_cab_id.isLimited())
        return u"select * , 0 as pilih from z_pay_grp order by grp_name"_s;
    return u"SELECT *, 0 as pilih FROM (select * from z_pay_grp where grp_id in (select distinct grp_id "
           "from z_pay_grp_emp where emp_id_auto in (select distinct emp_id_auto from emp where "
           "%1)) ) as xxx order by grp_name "_s.arg(session_cab_id.condition());
}

const QString componentStructure =
    u"select com_id, com_kode, com_name, no_urut, 0 as pilih from z_pay_com where com_id=0"_s;

data::Field integerField(const QString& name) {
    return {.name = name, .type = data::FieldType::Integer};
}

} // namespace

Tfrm_isian_hitung_gaji::Tfrm_isian_hitung_gaji(base::Services& services, RunFormTask task, QWidget* parent) :
    EntryScreen(services, task.mode, parent, {u"[Data Baru]", u"[Ubah Data]", u"[Lihat Data]"}),
    m_ui(std::make_unique<Ui::frm_isian_hitung_gaji>()), m_task(std::move(task)),
    m_copy(services.session.ADOConn, {services.session.login_id, services.session.clock}),
    sql_grp(services.session.ADOConn), sql_komp(services.session.ADOConn, componentStructure), cds_grp({&sql_grp}),
    cds_komp({&sql_komp}), vir_tb({integerField(u"grp_id"_s)}),
    vir_tb2({integerField(u"com_id"_s), integerField(u"type"_s), integerField(u"no_urut"_s)}),
    vir_emp({integerField(u"emp_id_auto"_s),
             {.name = u"pin"_s},
             {.name = u"nik"_s},
             {.name = u"nama"_s},
             integerField(u"grp_id"_s)}) {
    m_ui->setupUi(this);
    set_up();
    connect_handlers();
    m_services.language.ApplyLanguage(*this);
}

Tfrm_isian_hitung_gaji::~Tfrm_isian_hitung_gaji() = default;

void Tfrm_isian_hitung_gaji::set_up() {
    m_ui->dbg_grp->setColumns({{u"pilih"_s, u"Pilih"_s, Show::Tick},
                               {u"kode_grp"_s, u"Kode group"_s},
                               {u"grp_name"_s, u"Nama group gaji"_s}});
    m_ui->dbg_kom->setColumns({{u"pilih"_s, u"Pilih"_s, Show::Tick},
                               {u"com_kode"_s, u"Kode"_s},
                               {u"com_name"_s, u"Nama komponen"_s},
                               {u"no_urut"_s, u"No urut"_s}});
    m_ui->dbg_d->setColumns({{u"pin"_s, u"PIN"_s},
                             {u"nik"_s, u"NIK"_s},
                             {u"nama"_s, u"Nama"_s},
                             {u"tot_payroll"_s, u"Jumlah gaji"_s, Show::Money}});
    m_ui->dbg_sd->setColumns({{u"com_kode"_s, u"Kode"_s},
                              {u"com_name"_s, u"Nama komponen"_s},
                              {u"jenis"_s, u"+ / -"_s},
                              {u"subtot_payroll"_s, u"Nilai uang"_s, Show::Money},
                              {u"jml_faktor"_s, u"Faktor"_s, Show::Factor}});
    m_ui->dbg_grp->setDataSet(&cds_grp);
    m_ui->dbg_kom->setDataSet(&cds_komp);
    m_ui->dbg_d->setDataSet(&m_copy.cds_d);
    m_ui->dbg_sd->setDataSet(&m_copy.cds_sd);
    m_ui->dbe_nama->bind(m_copy.cds_m, u"process_name"_s);
    m_ui->dbe_bulat->bind(m_copy.cds_m, u"round_value"_s);
    acceptOnly(*m_ui->dbe_bulat, u"0123456789"_s, 9);
    m_ui->dbe_total->bind(m_copy.cds_m, u"tot_process"_s);
    m_ui->dbe_total->showMoney();
    m_ui->dbtp_tgl_aw->bind(m_copy.cds_m, u"date1"_s);
    m_ui->dbtp_tgl_akh->bind(m_copy.cds_m, u"date2"_s);
    m_ui->dtp_bulan->setLocale(QLocale(QLocale::Indonesian));
    m_ui->pnl_emp->hide();
    m_ui->pnl_proses->hide();
    chb_kreditClick();
    vir_tb.open();
    vir_tb2.open();
    vir_emp.open();
    m_copy.lineShown = [this] { segarkan_rincian(); };
}

void Tfrm_isian_hitung_gaji::connect_handlers() {
    using Self = Tfrm_isian_hitung_gaji;
    const std::pair<QAbstractButton*, void (Self::*)()> clicks[] = {
        {m_ui->chb_emp, &Self::chb_empClick},       {m_ui->btn_emp, &Self::btn_empClick},
        {m_ui->chb_kredit, &Self::chb_kreditClick}, {m_ui->btn_proses, &Self::btn_prosesClick},
        {m_ui->btn_hitung, &Self::btn_hitungClick}, {m_ui->btn_hapus, &Self::btn_hapusClick},
        {m_ui->btn_hapus2, &Self::btn_hapus2Click}, {m_ui->btn_simpan, &Self::btn_simpanClick}};
    for (const auto& [button, handler] : clicks)
        onEvent(button, &QAbstractButton::clicked, this, handler);
    bindTickButtons(*this, {m_ui->btn_select_all, m_ui->btn_disselect_all, m_ui->btn_invert},
                    [this](TickWish wish) { tick_groups(wish); });
    bindTickButtons(*this, {m_ui->btn_select_all2, m_ui->btn_disselect_all2, m_ui->btn_invert2},
                    [this](TickWish wish) { tick_components(wish); });
    bindTickButtons(*this, {m_ui->btn_sel_all, m_ui->btn_disel_all, m_ui->btn_balik},
                    [this](TickWish wish) { m_ui->clb_emp->tickAll(wish); });
    onEvent(m_ui->cmb_kredit, &QComboBox::activated, this, &Self::cmb_kreditCloseUp);
    onEvent(m_ui->clb_emp, &CheckList::ticksChanged, this, &Self::clb_empClickCheck);
    connect(m_ui->btn_tutup, &QPushButton::clicked, this, &QDialog::close);
    connect(m_ui->dbg_grp, &DataGrid::toggled, this, [this](const QString&, const QString& text) {
        runHandler(this, [this, text] { dbg_grppilihToggleClick(text); });
    });
    connect(m_ui->dbg_kom, &DataGrid::toggled, this, [this](const QString&, const QString& text) {
        runHandler(this, [this, text] { dbg_kompilihToggleClick(text); });
    });
    // No action of the person, so it leaves the notice bar alone; guarded as onEvent guards.
    connect(qApp, &QApplication::focusChanged, this, [screen = static_cast<QObject*>(this)](QWidget*, QWidget* now) {
        if (auto* alive = qobject_cast<Self*>(screen))
            alive->pnl_empExit(now);
    });
}

void Tfrm_isian_hitung_gaji::openLists() {
    sql_grp.setSql(groupStatement(m_services.session.session_cab_id));
    cds_grp.reopen();
    FitGridColumns(*m_ui->dbg_grp);
    cds_komp.reopen();
    FitGridColumns(*m_ui->dbg_kom);
    ClearDataSet(vir_tb);
}

void Tfrm_isian_hitung_gaji::openEntry() {
    for (QDateEdit* picker : {static_cast<QDateEdit*>(m_ui->dbtp_tgl_aw), static_cast<QDateEdit*>(m_ui->dbtp_tgl_akh)})
        picker->setDisplayFormat(u"dd/MM/yyyy"_s);
    if (mode() == EntryMode::New) {
        m_copy.openNew();
        siapkan_baru();
        return;
    }
    m_copy.open(m_task.process_id);
    if (mode() == EntryMode::Edit)
        m_copy.editAll();
    else
        set_read_only();
    siapkan_ubah();
}

void Tfrm_isian_hitung_gaji::set_read_only() {
    setReadOnly({&m_copy.cds_m, &m_copy.cds_d, &m_copy.cds_sd},
                {m_ui->dbe_nama, m_ui->dbe_bulat, m_ui->dbtp_tgl_aw, m_ui->dbtp_tgl_akh, m_ui->btn_proses,
                 m_ui->btn_hitung, m_ui->btn_hapus, m_ui->btn_hapus2});
}

void Tfrm_isian_hitung_gaji::siapkan_baru() {
    const QDate today = m_services.session.clock().date();
    m_copy.cds_m.editValue(u"date1", today.addDays(-defaultPeriodDays));
    m_copy.cds_m.editValue(u"date2", today);
    m_copy.cds_m.editValue(u"round_value", 0);
    m_ui->chb_kredit->setChecked(false);
    m_ui->cmb_kredit->setCurrentIndex(0);
    m_ui->dtp_bulan->setDisplayFormat(u"MMMM yyyy"_s);
    m_ui->dtp_bulan->setDate(today);
    chb_kreditClick();
    show_total();
    FitGridColumns(*m_ui->dbg_d);
    FitGridColumns(*m_ui->dbg_sd);
    m_ui->dbe_nama->setFocus();
}

void Tfrm_isian_hitung_gaji::siapkan_ubah() {
    m_ui->cmb_kredit->setCurrentIndex(0);
    m_ui->dtp_bulan->setDisplayFormat(u"MMMM yyyy"_s);
    m_ui->dtp_bulan->setDate(m_services.session.clock().date());
    m_ui->dbe_nama->setFocus();
    show_total();
    m_copy.cds_d.last();
    m_copy.cds_d.first();
    // A run that another station has deleted meanwhile has no header to stamp.
    if (mode() == EntryMode::Edit && !m_copy.cds_m.isEmpty())
        m_copy.stamp();
    FitGridColumns(*m_ui->dbg_d);
    FitGridColumns(*m_ui->dbg_sd);
}

void Tfrm_isian_hitung_gaji::segarkan_rincian() {
    if (!m_copy.cds_sd.isOpen())
        return;
    const run::WorkingCopy::Sums sums = m_copy.sums();
    m_ui->lbl_tunjangan_isi->setText(groupedInteger(sums.tunjangan));
    m_ui->lbl_potongan_isi->setText(groupedInteger(sums.potongan));
    m_ui->lbl_nama_emp->setText(m_copy.cds_d.text(u"nama"));
}

run::Notice Tfrm_isian_hitung_gaji::compute(run::Run& run) {
    BusyScreen busy(m_ui->pnl_proses, m_ui->pgb_proses);
    base::Session& session = m_services.session;
    const auto show = [&busy](const run::Progress& progress) { busy.showProgress(progress.done, progress.of); };
    const run::Notice notice = run::computeRun(run, selections(), session.ADOConn, session.ADOConn_lang, show);
    // Not before all is read: a computation that stops leaves the lines as they were.
    m_copy.deleteAllLines();
    m_copy.appendRun(run);
    return notice;
}

void Tfrm_isian_hitung_gaji::btn_prosesClick() {
    m_copy.cds_m.settle();
    run::Run run;
    const run::Notice notice = compute(run);
    // A message that cannot be looked up must not leave the lines without their totals.
    std::exception_ptr untold;
    try {
        if (notice == run::Notice::NoEmployees)
            m_services.messages.inform(this, tidak_ada_karyawan);
        else if (notice == run::Notice::MoreThan200Employees)
            m_services.messages.inform(this, lebih_200);
    } catch (const std::exception&) {
        untold = std::current_exception();
    }
    show_left_out(leftOut(run, hitung()));
    if (untold)
        std::rethrow_exception(untold);
}

void Tfrm_isian_hitung_gaji::btn_hitungClick() {
    hitung();
}

std::vector<run::RemovedLine> Tfrm_isian_hitung_gaji::hitung() {
    m_copy.cds_m.settle();
    std::vector<run::RemovedLine> removed = m_copy.hitung();
    show_total();
    FitGridColumns(*m_ui->dbg_d);
    FitGridColumns(*m_ui->dbg_sd);
    return removed;
}

void Tfrm_isian_hitung_gaji::btn_hapusClick() {
    if (m_copy.cds_d.isEmpty())
        return;
    m_copy.cds_d.remove();
    btn_hitungClick();
}

void Tfrm_isian_hitung_gaji::btn_hapus2Click() {
    if (m_copy.cds_sd.isEmpty())
        return;
    m_copy.cds_sd.remove();
    btn_hitungClick();
}

void Tfrm_isian_hitung_gaji::btn_simpanClick() {
    bool isStored = false;
    try {
        m_copy.cds_m.settle();
        const bool noName = firstMissing({{m_ui->dbe_nama, m_ui->dbe_nama->text().trimmed().isEmpty(), nama_kosong}});
        isStored = !noName && mode() != EntryMode::View && simpan();
    } catch (const std::exception& fault) {
        showFault(this, fault);
    }
    if (isStored)
        selesai();
    m_task.refresh();
}

QString Tfrm_isian_hitung_gaji::who_and_when(const run::StoredRun& change) const {
    // The other station's program may write neither.
    const QString who = change.lastupdate_user.isEmpty() ? txt_pemakai_lain.text() : change.lastupdate_user;
    return who + change.lastupdate_date.toString(u" (dd/MM/yyyy HH:mm)"_s);
}

bool Tfrm_isian_hitung_gaji::simpan() {
    for (;;) {
        switch (write_run()) {
        case run::Saved::Stored:
            return true;
        case run::Saved::Gone:
            m_services.messages.error(this, sudah_dihapus);
            return false;
        case run::Saved::NotKnown:
            m_services.messages.error(this, tidak_diketahui);
            return false;
        case run::Saved::ChangedElsewhere:
            if (!m_services.messages.confirm(this, diubah, who_and_when(m_copy.foreignChange())))
                return false;
            m_copy.replaceForeignChange();
        }
    }
}

run::Saved Tfrm_isian_hitung_gaji::write_run() {
    const BusyScreen busy(m_ui->pnl_proses, m_ui->pgb_proses);
    btn_hitungClick();
    return m_copy.save();
}

void Tfrm_isian_hitung_gaji::selesai() {
    save_log();
    m_task.refresh();
    if (mode() == EntryMode::New && m_task.goToLast)
        m_task.goToLast();
    close();
}

void Tfrm_isian_hitung_gaji::save_log() {
    const QString what =
        u"%1, %2 -- %3"_s.arg(m_ui->dbe_nama->text(), m_copy.cds_m.date(u"date1").toString(Qt::ISODate),
                              m_copy.cds_m.date(u"date2").toString(Qt::ISODate));
    fault::dropFault("catatan user log dari penyimpanan", [&] { logSave(what); });
}
