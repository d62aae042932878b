#include "register/fr_hitung_gaji.h"

#include "base/delete_ticked.h"
#include "base/look_up.h"
#include "base/tick_list.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/number_text.h"
#include "toolkit/ui/caption.h"
#include "toolkit/ui/data_grid.h"
#include "toolkit/ui/handler.h"
#include "ui_fr_hitung_gaji.h"

#include <QMenu>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int shownDays = 30;

const QString formName = u"frm_hitung_gaji"_s;
const base::MessageText lebih_dari_satu{formName, 1, u"Data yang dipilih lebih dari satu."_s};
const base::MessageText yakin_hapus{formName, 2,
                                    u"Apakah anda yakin akan menghapus proses perhitungan gaji yang dipilih?"_s};

const base::MessageText sudah_dihapus{formName, 4, u"Perhitungan gaji yang dipilih sudah dihapus di tempat lain."_s};

const QString selectRuns = u"SELECT *   , 0 as pilih FROM z_pay_process_m"_s;

const QString selectEmployees = uR"(SELECT * FROM (select d.*, e.pin, e.nik, grp.no_rek
   , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
   , c.cab_name, d2.dept_name, d2.level_id, f.func_name
   , SUBSTRING_INDEX(e.pin, '', 1) as col_str
   , SUBSTRING_INDEX(e.pin, ' ', -1) + 0 as col_num
   from z_pay_process_d as d left join emp as e on d.emp_id_auto=e.emp_id_auto
   left join cabang as c on e.cab_id_auto=c.cab_id_auto
   left join dept as d2 on e.dept_id_auto=d2.dept_id_auto
   left join func as f on e.func_id_auto=f.func_id_auto
   left join z_pay_grp_emp as grp on d.emp_id_auto=grp.emp_id_auto
   where d.process_id=:process_id ) as proses_d order by col_str, col_num, emp_id_auto)"_s;

QString selectDetails(int type) {
    return uR"(select sd.*, c.com_kode, c.com_name, e.pin, e.nik
   , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
   from z_pay_process_sd as sd left join z_pay_com as c on sd.com_id=c.com_id
   left join emp as e on sd.emp_id_auto=e.emp_id_auto
   where c.type=%1 and sd.process_id=:process_id and sd.emp_id_auto=:emp_id_auto order by c.no_urut)"_s.arg(type);
}

std::vector<ColumnPlan> detailColumns() {
    return {{u"com_kode"_s, u"Kode"_s},
            {u"com_name"_s, u"Nama komponen"_s},
            {u"subtot_payroll"_s, u"Nilai uang"_s, Show::Money},
            {u"jml_faktor"_s, u"Faktor"_s, Show::Money}};
}

/// Each row rounded to whole rupiah; what cannot be read ends the sum.
double sumOf(const data::DataSet& rows) {
    double sum = 0;
    fault::dropFault("penjumlahan rincian gaji", [&] {
        const int field = rows.fieldIndex(u"subtot_payroll");
        for (int row = 0; row < rows.rowCount(); ++row)
            sum += std::nearbyint(data::realOf(rows.valueAt(row, field)));
    });
    return sum;
}

QString isoDate(const QDate& date) {
    return date.toString(Qt::ISODate);
}

} // namespace

Tfrm_hitung_gaji::Tfrm_hitung_gaji(base::Services& services, QWidget* parent) :
    Workspace(services, parent), m_ui(std::make_unique<Ui::frm_hitung_gaji>()),
    sql_m(services.session.ADOConn, selectRuns), sql_d(services.session.ADOConn, selectEmployees),
    sql_sd(services.session.ADOConn, selectDetails(0)), sql_sd2(services.session.ADOConn, selectDetails(1)),
    cds_m({&sql_m}), m_baseSql(selectRuns), pmn_cetak(new QMenu(this)) {
    m_ui->setupUi(this);
    set_up();
    add_print_menu();
    connect_handlers();
    m_services.language.ApplyLanguage(*this);
}

Tfrm_hitung_gaji::~Tfrm_hitung_gaji() = default;

void Tfrm_hitung_gaji::set_up() {
    m_ui->dbg_m->setColumns({{u"pilih"_s, u"Pilih"_s, Show::Tick},
                             {u"process_name"_s, u"Nama penggajian"_s},
                             {u"date1"_s, u"Tgl. awal"_s, Show::Date},
                             {u"date2"_s, u"Tgl. akhir"_s, Show::Date},
                             {u"round_value"_s, u"Pecahan terkecil"_s, Show::Money},
                             {u"tot_process"_s, u" Total penggajian"_s, Show::Money},
                             {u"lastupdate_date"_s, u"Log tanggal"_s, Show::Moment},
                             {u"lastupdate_user"_s, u"Log user"_s},
                             {u"payment_date"_s, u"Tgl. bayar"_s, Show::Date, true},
                             {u"create_by"_s, u"Dibuat"_s, Show::Plain, true},
                             {u"check_by"_s, u"Diperiksa"_s, Show::Plain, true},
                             {u"approve_by"_s, u"Disetujui"_s, Show::Plain, true},
                             {u"process_id"_s, u"process_id"_s, Show::Plain, true}});
    m_ui->dbg_d->setColumns({{u"pin"_s, u"PIN"_s},
                             {u"nik"_s, u"NIK"_s},
                             {u"nama"_s, u"Nama karyawan"_s},
                             {u"tot_payroll"_s, u"Jumlah gaji"_s, Show::Money}});
    m_ui->dbg_sd->setColumns(detailColumns());
    m_ui->dbg_sd2->setColumns(detailColumns());
    m_ui->dbg_m->setDataSet(&cds_m);
    m_ui->dbg_d->setDataSet(&sql_d);
    m_ui->dbg_sd->setDataSet(&sql_sd);
    m_ui->dbg_sd2->setDataSet(&sql_sd2);
    sql_d.follow(cds_m, {u"process_id"_s});
    for (data::SqlQuery* details : {&sql_sd, &sql_sd2})
        details->follow(sql_d, {u"process_id"_s, u"emp_id_auto"_s});
    for (QDateEdit* picker : {m_ui->dtp_tgl_aw, m_ui->dtp_tgl_akh})
        picker->setDisplayFormat(u"dd-MM-yyyy"_s);
}

void Tfrm_hitung_gaji::connect_handlers() {
    using Self = Tfrm_hitung_gaji;
    const std::pair<QPushButton*, void (Self::*)()> clicks[] = {{m_ui->btn_cari, &Self::btn_cariClick},
                                                                {m_ui->btn_tambah, &Self::btn_tambahClick},
                                                                {m_ui->btn_edit, &Self::btn_editClick},
                                                                {m_ui->btn_hapus, &Self::btn_hapusClick},
                                                                {m_ui->btn_cetak, &Self::btn_cetakClick}};
    for (const auto& [button, handler] : clicks)
        onEvent(button, &QPushButton::clicked, this, handler);
    bindTickButtons(*this, {m_ui->btn_select_all, m_ui->btn_disselect_all, m_ui->btn_invert}, [this](TickWish wish) {
        fault::dropFault("pencentangan perhitungan", [&] { base::setTicks(cds_m, wish); });
    });
    setDefaultButton(m_ui->btn_cari);
    onEvent(m_ui->dbg_m, &DataGrid::rowChangedByUser, this, &Self::dbg_mClick);
    onEvent(m_ui->dbg_d, &DataGrid::rowChangedByUser, this, &Self::dbg_dClick);
}

void Tfrm_hitung_gaji::FormActivate() {
    const QDate today = m_services.session.clock().date();
    m_ui->dtp_tgl_akh->setDate(today);
    m_ui->dtp_tgl_aw->setDate(today.addDays(-shownDays));
    btn_cariClick();
    // A list without rows takes no focus.
    (m_ui->dbg_m->isEnabled() ? static_cast<QWidget*>(m_ui->dbg_m) : m_ui->dtp_tgl_aw)->setFocus();
}

void Tfrm_hitung_gaji::FormClose() {
    for (data::DataSet* list : std::initializer_list<data::DataSet*>{&sql_sd, &sql_sd2, &sql_d, &cds_m})
        list->close();
}

QString Tfrm_hitung_gaji::kondisi() const {
    QString text = u"\nwhere DATE(date1)>=DATE('%1') \nand DATE(date2)<DATE('%2') "_s.arg(
        isoDate(m_ui->dtp_tgl_aw->date()), isoDate(m_ui->dtp_tgl_akh->date().addDays(1)));
    if (const base::Branch& branch = m_services.session.session_cab_id; branch.isLimited())
        text += u"\nand process_id in (select distinct process_id from z_pay_process_d where emp_id_auto "
                "in (select distinct emp_id_auto from emp where %1)) "_s.arg(branch.condition());
    return text;
}

void Tfrm_hitung_gaji::btn_cariClick() {
    sql_m.setSql(m_baseSql + kondisi());
    open_list();
    open_employees();
    open_details();
    show_sums(u"] ~ "_s);
}

void Tfrm_hitung_gaji::open_list() {
    cds_m.reopen();
    FitGridColumns(*m_ui->dbg_m);
}

// What cannot be read must not leave the employees of one run below another.
void Tfrm_hitung_gaji::open_employees() {
    sql_d.close();
    close_details();
    show_true_sum();
    sql_d.open();
    FitGridColumns(*m_ui->dbg_d);
}

/// The list of employees repeats those of several groups, so the server adds up.
void Tfrm_hitung_gaji::show_true_sum() {
    QString differing;
    fault::dropFault("jumlah baris sebuah perhitungan", [&] {
        data::SqlQuery& sql = m_services.session.sql_temp;
        sql.openSql(u"select sum(tot_payroll) as jumlah from z_pay_process_d where process_id=%1"_s.arg(
            cds_m.integer(u"process_id")));
        differing = run::differingSum(txt_jumlah_benar.text(), cds_m.real(u"tot_process"), sql.real(u"jumlah"));
    });
    m_ui->lbl_jumlah_benar->setText(differing);
    m_ui->lbl_jumlah_benar->setVisible(!differing.isEmpty());
}

void Tfrm_hitung_gaji::close_details() {
    sql_sd.close();
    sql_sd2.close();
    m_ui->lbl_tunjangan_isi->clear();
    m_ui->lbl_potongan_isi->clear();
}

void Tfrm_hitung_gaji::open_details() {
    close_details();
    sql_sd.open();
    sql_sd2.open();
    FitGridColumns(*m_ui->dbg_sd);
    FitGridColumns(*m_ui->dbg_sd2);
}

void Tfrm_hitung_gaji::show_sums(const QString& between) {
    const QString name = u"[ "_s + sql_d.text(u"nama") + between;
    m_ui->lbl_tunjangan_isi->setText(name + groupedInteger(sumOf(sql_sd)));
    m_ui->lbl_potongan_isi->setText(name + groupedInteger(sumOf(sql_sd2)));
}

void Tfrm_hitung_gaji::dbg_mClick() {
    m_ui->lbl_emp_isi->setText(u"[ "_s + cds_m.text(u"process_name") + u" ]"_s);
    open_employees();
    open_details();
    show_sums(u" ] ~ "_s);
}

void Tfrm_hitung_gaji::dbg_dClick() {
    open_details();
    show_sums(u"] ~ "_s);
}

void Tfrm_hitung_gaji::open_form(RunFormTask task) {
    // The run is stored by then: a list that cannot be read must not look like a save that failed.
    task.refresh = [this] { fault::dropFault("penyegaran daftar perhitungan", [this] { btn_cariClick(); }); };
    task.goToLast = [this] {
        if (cds_m.isOpen())
            cds_m.last();
    };
    Tfrm_isian_hitung_gaji(m_services, std::move(task), window()).exec();
}

void Tfrm_hitung_gaji::btn_tambahClick() {
    open_form({.mode = EntryMode::New});
}

void Tfrm_hitung_gaji::btn_editClick() {
    if (!base::goToOnlyTicked(cds_m, m_services.messages, this, lebih_dari_satu))
        return;
    const int process_id = cds_m.integer32(u"process_id");
    if (base::countOf(m_services.session.ADOConn,
                      u"select count(*) from z_pay_process_m where process_id=%1"_s.arg(process_id)) > 0) {
        open_form({.mode = EntryMode::Edit, .process_id = process_id});
        return;
    }
    m_services.messages.inform(this, sudah_dihapus);
    btn_cariClick();
}

void Tfrm_hitung_gaji::btn_hapusClick() {
    const auto run = [this] {
        return u"%1, %2 -- %3"_s.arg(cds_m.text(u"process_name"), isoDate(cds_m.date(u"date1")),
                                     isoDate(cds_m.date(u"date2")));
    };
    // The header goes last: a run of which something was left can still be seen.
    const auto statements = [this] {
        const QString statement = u"Delete From %1 Where process_id=%2 "_s;
        const QString process_id = cds_m.text(u"process_id");
        return QStringList{statement.arg(u"z_pay_process_sd"_s, process_id),
                           statement.arg(u"z_pay_process_d"_s, process_id),
                           statement.arg(u"z_pay_process_m"_s, process_id)};
    };
    base::deleteTicked(cds_m, m_services, *this,
                       {.question = yakin_hapus,
                        .action = captionText(m_ui->btn_hapus->text()),
                        .what = run,
                        .statements = statements,
                        .giveUp =
                            [](const std::exception& refused) {
                                fault::reportDroppedFault("penghapusan data perhitungan gaji", refused);
                            },
                        .refresh = [this] { show_what_is_left(); }});
}

void Tfrm_hitung_gaji::show_what_is_left() {
    open_list();
    fault::dropFault("daftar di bawah daftar perhitungan", [this] { dbg_mClick(); });
}
