#include "frame/window/fr_menu.h"

#include "frame/base/connect.h"
#include "frame/base/fr_userlog.h"
#include "frame/base/log.h"
#include "schema/settings_keys.h"
#include "toolkit/data/drop_fault.h"
#include "toolkit/ui/handler.h"
#include "ui_fr_menu.h"

#include <QEvent>

#include <stdexcept>
#include <utility>

namespace {

constexpr qreal imageMagnification = 2.0;

/// The per-user value that frees a session from any branch, as an empty one does.
const QString allBranches = QStringLiteral("{3B9F17C4-A2D6-4E18-9C07-51EE40B7A26D}");

qint32 integerOf(const QString& text) {
    bool isNumber = false;
    const qint32 number = text.toInt(&isNumber);
    if (!isNumber)
        throw std::invalid_argument(QStringLiteral("'%1' is not a valid integer value").arg(text).toStdString());
    return number;
}

} // namespace

Tfrm_menu::Tfrm_menu(QString folder, frame::Clock clock, frame::UserSettingReader readUserSetting) :
    m_ui(std::make_unique<Ui::frm_menu>()), m_folder(std::move(folder)), m_readUserSetting(std::move(readUserSetting)),
    m_services(std::move(clock), this) {
    m_ui->setupUi(this);
    m_ui->StatusBar->setPanelCount(panelCount);
    onEvent(m_ui->btn_userlog, &QPushButton::clicked, this, &Tfrm_menu::btn_userlogClick);
}

Tfrm_menu::~Tfrm_menu() = default;

bool Tfrm_menu::FormCreate() {
    try {
        m_ping.emplace();
    } catch (const platform::PingUnavailable& fault) {
        showFault(nullptr, fault);
        return false;
    }
    for (MagnifyingImage* image : {m_ui->Image1, m_ui->Image2, m_ui->Image3})
        image->setMagnification(imageMagnification);
    data::dropFault("opening the sessions", [this] { frame::openSessions(m_folder, *m_ping, m_session); });
    first_activate = m_session.ADOConn.isOpen();
    return first_activate;
}

void Tfrm_menu::setPanelText(int index, const QString& text) {
    m_ui->StatusBar->setPanelText(index, text);
    if (index == 0)
        m_session.login_id = text;
}

void Tfrm_menu::comeForward() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    qCInfo(frame::startLog) << "brought forward by another start";
}

bool Tfrm_menu::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        runHandler(this, [this] { FormActivate(); });
    return QMainWindow::event(event);
}

void Tfrm_menu::FormActivate() {
    if (!std::exchange(first_activate, false))
        return;
    m_services.language.ApplyLanguage(*this);
    read_change_lang();
    sql_cab.openSql(QStringLiteral("select * from cabang"));
    sql_jbt.openSql(QStringLiteral("select * from func"));
    read_periode();
    read_session_cab();
    qCInfo(frame::startLog) << "running";
}

void Tfrm_menu::read_change_lang() {
    data::SqlQuery& sql = m_session.sql_cek_lang;
    sql.openSql(QStringLiteral("select param_value from global_setting where param_id='change_lang' "));
    m_services.messages.allowEditing(sql.text(u"param_value") != QLatin1String("0"));
}

void Tfrm_menu::read_periode() {
    const auto read = [this](QDateEdit* picker, QLatin1String key) {
        picker->setDisplayFormat(QStringLiteral("dd-MM-yyyy"));
        m_session.sql_temp_lang.openSql(
            QStringLiteral("select *, STR_TO_DATE(param_value, '%Y-%m-%d') as Tgl from global_setting "
                           "where param_id='") +
            key + QStringLiteral("' "));
        const QDate date = m_session.sql_temp_lang.date(u"Tgl");
        picker->setDate(date.isValid() ? date : m_session.clock().date());
    };
    read(m_ui->dtp_tgl_aw, setting::tanggalAwalProses);
    read(m_ui->dtp_tgl_akh, setting::tanggalAkhirProses);
    m_ui->lbl_tgl->setText(
        QStringLiteral("Tanggal : %1 s/d %2").arg(m_ui->dtp_tgl_aw->text(), m_ui->dtp_tgl_akh->text()));
}

void Tfrm_menu::read_session_cab() {
    const QString value = m_readUserSetting(QStringLiteral("Admin User ID"));
    if (value == allBranches || value.trimmed().isEmpty())
        return;
    m_session.session_cab_id = value.mid(value.indexOf(u':') + 1);
    filter_cab_id = integerOf(m_session.session_cab_id);
}

void Tfrm_menu::btn_userlogClick() {
    Tfrm_userlog(m_services, m_session.login_id, frame::payrollModule, this).exec();
}
