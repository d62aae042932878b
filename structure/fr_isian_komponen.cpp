#include "structure/fr_isian_komponen.h"

#include "base/look_up.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/sql_text.h"
#include "toolkit/ui/data_edit.h"
#include "toolkit/ui/handler.h"
#include "ui_fr_isian_komponen.h"

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostDigits = 4;
constexpr int stepOfNumbers = 5; // leaves room to insert between two components

const QString formName = u"frm_isian_komponen"_s;
const base::MessageText nama_kosong{formName, 1, u"Nama komponen gaji harus diisi."_s};
const base::MessageText kode_kosong{formName, 2, u"Kode komponen gaji harus diisi dengan benar."_s};
const base::MessageText no_urut_kosong{formName, 3, u"No urut komponen gaji harus diisi dengan benar."_s};
const base::MessageText no_urut_ada{formName, 4, u"No urut gaji sudah ada, masukkan no urut yang lain."_s};
const base::MessageText nama_ada{formName, 5, u"Nama komponen gaji sudah ada, masukkan nama komponen yang lain."_s};
const base::MessageText kode_ada{formName, 6, u"Kode komponen gaji sudah ada, masukkan kode komponen yang lain."_s};

qint64 numberOf(const QString& text) {
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (!isNumber)
        throw std::invalid_argument(u"'%1' is not a valid integer value"_s.arg(text).toStdString());
    return number;
}

QString flagText(const QCheckBox& box) {
    return box.isChecked() ? u"-1"_s : u"0"_s;
}

} // namespace

Tfrm_isian_komponen::Tfrm_isian_komponen(base::Services& services, ComponentTask task, QWidget* parent) :
    EntryScreen(services, task.mode, parent), m_ui(std::make_unique<Ui::frm_isian_komponen>()),
    m_task(std::move(task)) {
    m_ui->setupUi(this);
    acceptOnly(*m_ui->edt_no_urut, u"0123456789"_s, mostDigits);
    connect_handlers();
    add_leave_checks();
    m_services.language.ApplyLanguage(*this);
}

Tfrm_isian_komponen::~Tfrm_isian_komponen() = default;

void Tfrm_isian_komponen::connect_handlers() {
    using Self = Tfrm_isian_komponen;
    onEvent(m_ui->chb_take_home_pay, &QCheckBox::toggled, this, &Self::chb_take_home_payClick);
    onEvent(m_ui->chb_pinjaman, &QCheckBox::toggled, this, &Self::chb_pinjamanClick);
    onEvent(m_ui->btn_simpan, &QPushButton::clicked, this, &Self::btn_simpanClick);
    connect(m_ui->btn_tutup, &QPushButton::clicked, this, &QDialog::close);
}

void Tfrm_isian_komponen::add_leave_checks() {
    const auto counting = [](const QString& column) {
        return [column](const QString& text) {
            return u"select count(*) as jml from z_pay_com where %1="_s.arg(column) + quotedSqlText(text);
        };
    };
    m_cek_nama = new base::LeaveCheck(m_services, *m_ui->edt_nama, counting(u"com_name"_s), nama_ada);
    m_cek_kode = new base::LeaveCheck(m_services, *m_ui->edt_kode, counting(u"com_kode"_s), kode_ada);
    // "5" and "05" are one number.
    const auto countingNumber = [this](const QString& text) {
        const qint64 no_urut = numberOf(text);
        return no_urut == m_no_urut ? QString()
                                    : u"select count(*) as jml from z_pay_com where no_urut=%1"_s.arg(no_urut);
    };
    m_cek_no_urut = new base::LeaveCheck(m_services, *m_ui->edt_no_urut, countingNumber, no_urut_ada);
}

void Tfrm_isian_komponen::openEntry() {
    if (mode() == EntryMode::New)
        siapkan_baru();
    else
        muat();
}

void Tfrm_isian_komponen::set_loaded(const QString& no_urut, const QString& nama, const QString& kode) {
    m_ui->edt_no_urut->setText(no_urut);
    m_cek_no_urut->setLoaded(QString::number(m_no_urut));
    m_ui->edt_nama->setText(nama);
    m_ui->edt_kode->setText(kode);
    m_cek_nama->setLoaded(nama);
    m_cek_kode->setLoaded(kode);
    m_ui->edt_nama->setFocus();
}

void Tfrm_isian_komponen::siapkan_baru() {
    db::Connection& main = m_services.session.ADOConn;
    m_com_id = base::nextKey(main, u"z_pay_com", u"com_id");
    m_no_urut = base::countOf(main, u"select max(no_urut) as no_urut from z_pay_com "_s);
    m_ui->cmb_jenis->setCurrentIndex(0);
    for (QCheckBox* box :
         {m_ui->chb_berubah, m_ui->chb_pinjaman, m_ui->chb_param, m_ui->chb_disetahunkan, m_ui->chb_take_home_pay})
        box->setChecked(false);
    chb_take_home_payClick();
    set_loaded(QString::number(m_no_urut + stepOfNumbers), {}, {});
}

void Tfrm_isian_komponen::muat() {
    data::SqlQuery& sql = m_services.session.sql_temp;
    sql.openSql(u"select * from z_pay_com where com_id=%1"_s.arg(m_task.com_id));
    m_com_id = m_task.com_id;
    m_no_urut = sql.integer(u"no_urut");
    const std::pair<QCheckBox*, QStringView> flags[] = {{m_ui->chb_berubah, u"fluctuate"},
                                                        {m_ui->chb_param, u"param"},
                                                        {m_ui->chb_disetahunkan, u"disetahunkan"},
                                                        {m_ui->chb_take_home_pay, u"take_home_pay"},
                                                        {m_ui->chb_pinjaman, u"pinjaman"}};
    m_ui->cmb_jenis->setCurrentIndex(sql.integer32(u"type"));
    m_ui->cmb_bayar->setCurrentIndex(sql.integer32(u"cara_bayar"));
    set_loaded(QString::number(m_no_urut), sql.text(u"com_name"), sql.text(u"com_kode"));
    // A box that changes runs its handler, which may lock the type.
    for (const auto& [box, field] : flags)
        box->setChecked(sql.integer(field) == -1);
    chb_take_home_payClick();
}

void Tfrm_isian_komponen::chb_take_home_payClick() {
    const bool isPaid = m_ui->chb_take_home_pay->isChecked();
    m_ui->lbl_bayar->setVisible(isPaid);
    m_ui->cmb_bayar->setVisible(isPaid);
    if (!isPaid)
        m_ui->cmb_bayar->setCurrentIndex(0);
}

void Tfrm_isian_komponen::chb_pinjamanClick() {
    const bool isLoan = m_ui->chb_pinjaman->isChecked();
    if (isLoan)
        m_ui->cmb_jenis->setCurrentIndex(1);
    m_ui->cmb_jenis->setEnabled(!isLoan);
}

bool Tfrm_isian_komponen::cek_isian() {
    return !firstMissing({{m_ui->edt_nama, m_ui->edt_nama->text().isEmpty(), nama_kosong},
                          {m_ui->edt_kode, m_ui->edt_kode->text().isEmpty(), kode_kosong},
                          {m_ui->edt_no_urut, m_ui->edt_no_urut->text().isEmpty(), no_urut_kosong}});
}

QString Tfrm_isian_komponen::statement() const {
    const std::pair<QString, QString> values[] = {
        {u"com_kode"_s, quotedSqlText(m_ui->edt_kode->text())},
        {u"com_name"_s, quotedSqlText(m_ui->edt_nama->text())},
        {u"type"_s, QString::number(m_ui->cmb_jenis->currentIndex())},
        {u"fluctuate"_s, flagText(*m_ui->chb_berubah)},
        {u"no_urut"_s, m_ui->edt_no_urut->text()},
        {u"param"_s, flagText(*m_ui->chb_param)},
        {u"disetahunkan"_s, flagText(*m_ui->chb_disetahunkan)},
        {u"take_home_pay"_s, flagText(*m_ui->chb_take_home_pay)},
        {u"cara_bayar"_s, QString::number(m_ui->cmb_bayar->currentIndex())},
        {u"pinjaman"_s, flagText(*m_ui->chb_pinjaman)},
        {u"lastupdate_date"_s, m_services.session.clock().toString(u"''yyyy-MM-dd HH:mm''")},
        {u"lastupdate_user"_s, EscapeSqlText(m_services.session.login_id)}};
    QStringList columns{u"com_id"_s}, inserted{QString::number(m_com_id)}, changed;
    for (const auto& [column, value] : values) {
        columns << column;
        inserted << value;
        changed << column + u'=' + value;
    }
    if (mode() == EntryMode::New)
        return u"insert into z_pay_com("_s + columns.join(u", "_s) + u") values("_s + inserted.join(u", "_s) + u')';
    return u"update z_pay_com set "_s + changed.join(u", "_s) + u" where com_id="_s + QString::number(m_com_id);
}

void Tfrm_isian_komponen::btn_simpanClick() {
    if (!cek_isian())
        return;
    fault::dropFault("penyimpanan komponen gaji", [this] {
        m_services.session.ADOCom_update.execute(statement());
        logSave(m_ui->edt_kode->text() + u" : "_s + m_ui->edt_nama->text());
    });
    m_task.refresh();
    if (mode() == EntryMode::Edit) {
        close();
        return;
    }
    m_task.goToLast();
    siapkan_baru();
}
