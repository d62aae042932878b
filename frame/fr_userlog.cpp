#include "frame/fr_userlog.h"

#include "base/look_up.h"
#include "schema/settings_keys.h"
#include "toolkit/text/sql_text.h"
#include "toolkit/ui/caption.h"
#include "toolkit/ui/handler.h"
#include "ui_fr_userlog.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int administratorGroup = 1;
constexpr int shownDays = 7;
constexpr int keptDays = 30;

const base::MessageText terhapus{u"frm_userlog"_s, 1, u"Data user log telah di hapus."_s};

QString isoDate(const QDate& date) {
    return date.toString(Qt::ISODate);
}

} // namespace

Tfrm_userlog::Tfrm_userlog(base::Services& services, QString login_id, int module, QWidget* parent) :
    Screen(services, parent), m_ui(std::make_unique<Ui::frm_userlog>()), m_user(std::move(login_id)), m_module(module),
    sql_user(services.session.ADOConn_lang, u"SELECT *  FROM user_login"_s),
    sql_userlog(services.session.ADOConn, QString::fromUtf8(R"(SELECT * , if(module=1, 'Mesin', if(module=2, 'Karyawan',
        if(module=3, 'Jadwal', if(module=4, 'Pengaturan', if(module=5, 'Pengecualian', if(module=6, 'Laporan',
        if(module=7, 'Penggajian', ''))))))) as nama_modul FROM user_log)")),
    m_baseSql(sql_userlog.sql()) {
    m_ui->setupUi(this);
    m_ui->dbg_userlog->setColumns({{u"log_date"_s, u"Tanggal"_s, Show::Moment},
                                   {u"login_id"_s, u"User"_s},
                                   {u"nama_modul"_s, u"Modul"_s},
                                   {u"log_note"_s, u"Keterangan"_s}});
    m_ui->dbg_userlog->setDataSet(&sql_userlog);
    m_ui->lookup_user->setSource(&sql_user, u"login_id"_s, u"login_id"_s);
    for (QDateEdit* picker : {m_ui->dtp_tgl_aw, m_ui->dtp_tgl_akh, m_ui->dtp_hapus})
        picker->setDisplayFormat(u"dd-MM-yyyy"_s);
    onEvent(m_ui->lookup_user, &LookupBox::closedUp, this, &Tfrm_userlog::lookup_userCloseUp);
    onEvent(m_ui->btn_cari, &QPushButton::clicked, this, &Tfrm_userlog::btn_cariClick);
    onEvent(m_ui->btn_hapus, &QPushButton::clicked, this, &Tfrm_userlog::btn_hapusClick);
    onEvent(m_ui->btn_buka, &QToolButton::toggled, this, &Tfrm_userlog::btn_bukaClick);
    connect(m_ui->btn_tutup, &QPushButton::clicked, this, &QDialog::close);
    m_services.language.ApplyLanguage(*this);
}

Tfrm_userlog::~Tfrm_userlog() = default;

void Tfrm_userlog::FormActivate() {
    m_ui->btn_buka->setChecked(false);
    btn_bukaClick();
    sql_user.reopen();
    set_hak_akses();
    m_ui->cmb_modul->setCurrentIndex(m_module);
    set_tanggal();
    set_modul();
    btn_cariClick();
}

void Tfrm_userlog::set_hak_akses() {
    data::SqlQuery& sql = m_services.session.sql_temp_lang;
    sql.openSql(u"select * from user_login where login_id="_s + quotedSqlText(m_user) + u' ');
    const bool administrator = sql.integer(u"group_id_auto") == administratorGroup;
    m_ui->lookup_user->setKey(m_user);
    // A login that the suite does not know is still the one whose rows are shown.
    m_login_id = m_user;
    if (administrator)
        return;
    m_ui->chb_user->setEnabled(false);
    m_ui->lookup_user->setEnabled(false);
    m_ui->pnl_bawah->hide();
}

void Tfrm_userlog::set_tanggal() {
    const QDate today = m_services.session.clock().date();
    m_ui->dtp_tgl_akh->setDate(today);
    m_ui->dtp_tgl_aw->setDate(today.addDays(-shownDays));
    m_ui->dtp_hapus->setDate(today.addDays(-keptDays));
}

void Tfrm_userlog::set_modul() {
    const QString isUsed = base::readSetting(m_services.session.ADOConn_lang, schema::usePayrollModule);
    if (isUsed == "-1"_L1 || m_ui->cmb_modul->count() <= base::payrollModule)
        return;
    const bool wasChosen = m_ui->cmb_modul->currentIndex() == base::payrollModule;
    m_ui->cmb_modul->removeItem(base::payrollModule);
    if (wasChosen)
        m_ui->cmb_modul->setCurrentIndex(0);
}

void Tfrm_userlog::lookup_userCloseUp() {
    m_login_id = m_ui->lookup_user->text().isEmpty() ? QString() : sql_user.text(u"login_id");
}

void Tfrm_userlog::btn_bukaClick() {
    const bool open = m_ui->btn_buka->isChecked();
    m_ui->btn_buka->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    m_ui->pnl_hapus->setVisible(open);
}

QString Tfrm_userlog::kondisi() const {
    QString text;
    const auto starter = [&text] { return text.isEmpty() ? u"where "_s : u"and "_s; };
    if (m_ui->chb_user->isChecked() && !m_login_id.isEmpty())
        text += u" where login_id="_s + quotedSqlText(m_login_id) + u' ';
    if (m_ui->chb_tgl->isChecked())
        text += starter() + u"DATE(log_date)>=DATE('%1') \rand DATE(log_date)<DATE('%2') "_s.arg(
                                isoDate(m_ui->dtp_tgl_aw->date()), isoDate(m_ui->dtp_tgl_akh->date().addDays(1)));
    if (const int module = m_ui->cmb_modul->currentIndex(); m_ui->chb_modul->isChecked() && module != 0)
        text += starter() + u"module=%1 "_s.arg(module);
    return text;
}

void Tfrm_userlog::btn_cariClick() {
    sql_userlog.openSql(m_baseSql + u'\n' + kondisi() + u"order by log_date "_s);
    FitGridColumns(*m_ui->dbg_userlog);
}

void Tfrm_userlog::btn_hapusClick() {
    const QString date = isoDate(m_ui->dtp_hapus->date());
    m_services.log(*this, captionText(m_ui->btn_hapus->text()), u"User Log Data < "_s + date);
    m_services.session.ADOCom_update.execute(u"Delete From user_log where DATE(log_date)<DATE('%1') "_s.arg(date));
    m_services.messages.inform(this, terhapus);
    btn_cariClick();
}
