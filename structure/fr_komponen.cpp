#include "structure/fr_komponen.h"

#include "base/delete_ticked.h"
#include "base/look_up.h"
#include "base/tick_list.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/ui/caption.h"
#include "toolkit/ui/data_grid.h"
#include "toolkit/ui/handler.h"
#include "ui_fr_komponen.h"

using namespace Qt::StringLiterals;

namespace {

const QString formName = u"frm_komponen"_s;
const base::MessageText lebih_dari_satu{formName, 1, u"Data yang dipilih lebih dari satu."_s};
const base::MessageText yakin_hapus{formName, 2, u"Apakah anda yakin akan menghapus komponen gaji yang dipilih?"_s};
const base::MessageText masih_digunakan{formName, 3, u"Data tidak bisa dihapus karena masih digunakan data lain."_s};

const QString selectComponents = uR"(SELECT * , if(type=0, 'Penerimaan', 'Potongan') as jenis
   , if(cara_bayar=0, 'Tunai', 'Transfer') as pembayaran , 0 as pilih
   FROM z_pay_com order by type, no_urut)"_s;

} // namespace

Tfrm_komponen::Tfrm_komponen(base::Services& services, QWidget* parent) :
    Workspace(services, parent), m_ui(std::make_unique<Ui::frm_komponen>()),
    sql_komp(services.session.ADOConn, selectComponents), cds_komp({&sql_komp}) {
    m_ui->setupUi(this);
    set_up();
    connect_handlers();
    m_services.language.ApplyLanguage(*this);
}

Tfrm_komponen::~Tfrm_komponen() = default;

void Tfrm_komponen::set_up() {
    m_ui->dbg_comp->setColumns({{u"pilih"_s, u"Pilih"_s, Show::Tick},
                                {u"com_kode"_s, u"Kode"_s},
                                {u"com_name"_s, u"Nama komponen"_s},
                                {u"jenis"_s, u"Jenis"_s},
                                {u"fluctuate"_s, u"Berubah-ubah"_s, Show::Mark},
                                {u"param"_s, u"Bagian dari formula"_s, Show::Mark},
                                {u"disetahunkan"_s, u"Disetahunkan"_s, Show::Mark},
                                {u"pinjaman"_s, u"Pinjaman"_s, Show::Mark},
                                {u"take_home_pay"_s, u"Take home pay"_s, Show::Mark},
                                {u"pembayaran"_s, u"Pembayaran"_s},
                                {u"no_urut"_s, u"No urut"_s},
                                {u"lastupdate_date"_s, u"Log tanggal"_s, Show::Moment},
                                {u"lastupdate_user"_s, u"Log user"_s}});
    m_ui->dbg_comp->setDataSet(&cds_komp);
}

void Tfrm_komponen::connect_handlers() {
    using Self = Tfrm_komponen;
    onEvent(m_ui->btn_tambah, &QPushButton::clicked, this, &Self::btn_tambahClick);
    onEvent(m_ui->btn_edit, &QPushButton::clicked, this, &Self::btn_editClick);
    onEvent(m_ui->btn_hapus, &QPushButton::clicked, this, &Self::btn_hapusClick);
    bindTickButtons(*this, {m_ui->btn_select_all, m_ui->btn_disselect_all, m_ui->btn_invert}, [this](TickWish wish) {
        fault::dropFault("pencentangan daftar susunan gaji", [&] { base::setTicks(cds_komp, wish); });
    });
}

void Tfrm_komponen::FormActivate() {
    open_components();
    (m_ui->dbg_comp->isEnabled() ? static_cast<QWidget*>(m_ui->dbg_comp) : m_ui->btn_tambah)->setFocus();
}

void Tfrm_komponen::FormClose() {
    cds_komp.close();
}

void Tfrm_komponen::open_components() {
    cds_komp.reopen();
    FitGridColumns(*m_ui->dbg_comp);
}

void Tfrm_komponen::open_form(ComponentTask task) {
    task.refresh = [this] { open_components(); };
    task.goToLast = [this] { cds_komp.last(); };
    Tfrm_isian_komponen(m_services, std::move(task), window()).exec();
}

void Tfrm_komponen::btn_tambahClick() {
    open_form({.mode = EntryMode::New});
}

void Tfrm_komponen::btn_editClick() {
    if (base::goToOnlyTicked(cds_komp, m_services.messages, this, lebih_dari_satu))
        open_form({.mode = EntryMode::Edit, .com_id = cds_komp.integer32(u"com_id")});
}

// The first row alone decides: a component that has nothing but money values goes.
bool Tfrm_komponen::isInUse() const {
    const QString statement = u"select count(*) as jml from z_pay_grp_com where com_id=%1 union all "
                              "select count(*) as jml from z_pay_money where com_id=%1 "_s;
    return base::countOf(m_services.session.ADOConn, statement.arg(cds_komp.text(u"com_id"))) != 0;
}

void Tfrm_komponen::btn_hapusClick() {
    const auto giveUp = [](const std::exception& refused) {
        fault::reportDroppedFault("penghapusan komponen gaji", refused);
    };
    base::deleteTicked(
        cds_komp, m_services, *this,
        {.question = yakin_hapus,
         .isNeeded = [this] { return isInUse(); },
         .stillNeeded = &masih_digunakan,
         .action = captionText(m_ui->pgc->tabText(0)) + u" - "_s + captionText(m_ui->btn_hapus->text()),
         .what = [this] { return cds_komp.text(u"com_kode") + u" - "_s + cds_komp.text(u"com_name"); },
         .statements =
             [this] { return QStringList{u"Delete From z_pay_com Where com_id=%1 "_s.arg(cds_komp.text(u"com_id"))}; },
         .giveUp = giveUp,
         .refresh = [this] { open_components(); }});
}
