#include "frame/fr_menu.h"

#include "base/log.h"
#include "base/look_up.h"
#include "frame/connect.h"
#include "frame/fr_userlog.h"
#include "frame/recap.h"
#include "schema/settings_keys.h"
#include "toolkit/data/fault.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/ui/enter_key.h"
#include "toolkit/ui/handler.h"
#include "toolkit/ui/wait_cursor.h"
#include "ui_fr_menu.h"

#include <QCloseEvent>
#include <QEvent>

#include <chrono>
#include <exception>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

/// The pictures lie in a static library, where nothing else makes the linker keep them.
static void loadPictures() {
    Q_INIT_RESOURCE(window);
}

namespace {

constexpr qreal imageMagnification = 2.0;

/// The per-user value that leaves a session unlimited, as an empty one does.
const QString unlimitedUser = u"{3B9F17C4-A2D6-4E18-9C07-51EE40B7A26D}"_s;

/// The place in cmb_filter at which employees are ticked one by one; the list ends before it.
constexpr int criteriaItem = 7;

qint32 integerOf(const QString& text) {
    bool isNumber = false;
    const qint32 number = text.toInt(&isNumber);
    if (!isNumber)
        throw std::invalid_argument(u"'%1' is not a valid integer value"_s.arg(text).toStdString());
    return number;
}

template <typename Action>
std::exception_ptr faultOf(Action&& action) {
    try {
        action();
        return {};
    } catch (const std::exception&) {
        return std::current_exception();
    }
}

} // namespace

Tfrm_menu::Tfrm_menu(QString folder, base::Clock clock, base::UserSettingReader readUserSetting) :
    m_ui(std::make_unique<Ui::frm_menu>()), m_folder(std::move(folder)), m_readUserSetting(std::move(readUserSetting)),
    m_services(std::move(clock), this), btn_pemberitahuan(new QToolButton(this)),
    m_notices(m_services, *this, *btn_pemberitahuan) {
    loadPictures();
    for (db::Connection* connection : {&m_session.ADOConn, &m_session.ADOConn_lang})
        connection->setWatch(&m_statement_wait);
    m_ui->setupUi(this);
    m_ui->StatusBar->setPanelCount(panelCount);
    btn_pemberitahuan->setObjectName(u"btn_pemberitahuan"_s);
    m_ui->StatusBar->addPermanentWidget(btn_pemberitahuan);
    btn_pemberitahuan->hide();
    m_ui->filter->attach(m_session);
    m_ui->pnl_emp->hide();
    setUpRecap();
    setUpEntrances();
    connectHandlers();
}

Tfrm_menu::~Tfrm_menu() = default;

void Tfrm_menu::setUpEntrances() {
    m_entrances = {{{m_ui->Image1, m_ui->lbl_1, &Tfrm_menu::Image1Click},
                    {m_ui->Image2, m_ui->lbl_2, &Tfrm_menu::Image2Click},
                    {m_ui->Image3, m_ui->lbl_3, &Tfrm_menu::Image3Click}}};
    for (const Entrance& entrance : m_entrances) {
        onEvent(entrance.image, &MagnifyingImage::clicked, this, entrance.click);
        onEvent(entrance.label, &ClickLabel::clicked, this, entrance.click);
    }
    for (const Icon icon : {KomponenGaji, ProsesPenggajian, PinjamanKaryawan})
        setWorkspace(icon, {});
}

void Tfrm_menu::setUpRecap() {
    m_ui->dbg_rekap->setColumns(frame::recap::columns(), frame::recap::bands());
    m_ui->dbg_rekap->setCellColour([this](const CellInView& cell) { return dbg_rekapCustomDrawCell(cell); });
    m_ui->dbg_rekap->setEnabled(false);
}

void Tfrm_menu::connectHandlers() {
    onEvent(m_ui->filter, &base::FilterBlock::searchWanted, this, &Tfrm_menu::btn_cariClick);
    onEvent(m_ui->filter, &base::FilterBlock::valueChosen, this, &Tfrm_menu::criteriaChosen);
    onEvent(m_ui->btn_userlog, &QPushButton::clicked, this, &Tfrm_menu::btn_userlogClick);
    Timer1.setSingleShot(true);
    Timer1.setInterval(std::chrono::seconds(1));
    // The guide is no action of the person at the screen; what the frame tells stays.
    connect(&Timer1, &QTimer::timeout, this, [this] { showingFaults(this, [this] { Timer1Timer(); }); });
}

bool Tfrm_menu::FormCreate() {
    try {
        m_ping.emplace();
    } catch (const platform::PingFault& fault) {
        qCInfo(base::startLog) << "no echo can be sent:" << fault.what();
        showFault(nullptr, fault);
        return false;
    }
    for (const Entrance& entrance : m_entrances)
        entrance.image->setMagnification(imageMagnification);
    fault::dropFault("pembukaan sesi basis data", [this] { frame::openSessions(m_folder, *m_ping, m_session); });
    first_activate = m_session.ADOConn.isOpen();
    if (first_activate)
        Timer1.start();
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
    qCInfo(base::startLog) << "brought forward by another start";
}

bool Tfrm_menu::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && first_activate)
        runHandler(this, [this] { FormActivate(); });
    return QMainWindow::event(event);
}

void Tfrm_menu::FormActivate() {
    if (!std::exchange(first_activate, false))
        return;
    // Before anything else can fail; its own fault waits until the frame stands in the user's language.
    const std::exception_ptr noBranch = faultOf([this] { read_session_cab(); });
    m_services.language.ApplyLanguage(*this);
    m_notices.readTexts();
    read_change_lang();
    // Laid out anew with the texts of the language.
    m_ui->pnl_tengah->hide();
    m_ui->pnl_tengah->show();
    m_ui->filter->fillTree();
    m_ui->filter->openLookups();
    read_periode();
    m_colours = frame::recap::readColourSettings(m_session);
    m_ui->filter->applySessionBranch();
    if (noBranch)
        std::rethrow_exception(noBranch);
    btn_cariClick();
    m_ui->dtp_tgl_aw->setFocus();
    qCInfo(base::startLog) << "running";
}

void Tfrm_menu::closeEvent(QCloseEvent* event) {
    Timer1.stop();
    m_frm_warning.reset();
    m_ui->filter->closeLookups();
    if (sql_rekap)
        sql_rekap->close();
    QMainWindow::closeEvent(event);
}

void Tfrm_menu::keyPressEvent(QKeyEvent* event) {
    if (!isEnter(*event))
        QMainWindow::keyPressEvent(event);
    else if (!pressFocusedButton(*this) && qobject_cast<QDateEdit*>(focusWidget()) && !m_workspace)
        runHandler(this, [this] { btn_cariClick(); });
}

void Tfrm_menu::read_change_lang() {
    m_services.messages.allowEditing(base::readSetting(m_session.ADOConn_lang, schema::changeLang) != "0"_L1);
}

void Tfrm_menu::read_periode() {
    const auto read = [this](QDateEdit* picker, QLatin1String key) {
        picker->setDisplayFormat(u"dd-MM-yyyy"_s);
        m_session.sql_temp_lang.openSql(u"select *, STR_TO_DATE(param_value, '%Y-%m-%d') as Tgl from global_setting "
                                        "where param_id='"_s +
                                        key + u"' "_s);
        const QDate date = m_session.sql_temp_lang.date(u"Tgl");
        picker->setDate(date.isValid() ? date : m_session.clock().date());
    };
    read(m_ui->dtp_tgl_aw, schema::tanggalAwalProses);
    read(m_ui->dtp_tgl_akh, schema::tanggalAkhirProses);
    m_ui->lbl_tgl->setText(txt_tanggal.text() + m_ui->dtp_tgl_aw->text() + txt_sd.text() + m_ui->dtp_tgl_akh->text());
}

void Tfrm_menu::read_session_cab() {
    const QString value = m_readUserSetting(u"Admin User ID"_s);
    if (value == unlimitedUser || value.trimmed().isEmpty()) {
        m_session.session_cab_id = base::Branch::all();
        return;
    }
    const auto branch = base::Branch::one(integerOf(value.mid(value.indexOf(u':') + 1)));
    const qint64 count = base::countOf(m_session.ADOConn, u"select count(*) from cabang where "_s + branch.condition());
    const auto mustExist = [&] {
        if (count == 0)
            throw data::Fault(branch.condition());
    };
    if (fault::dropFault("cabang yang membatasi pemakai ini", mustExist))
        m_session.session_cab_id = branch;
}

void Tfrm_menu::btn_cariClick() {
    const WaitCursor waiting;
    QString condition = base::employeesAtWork() + m_ui->filter->conditionByName();
    if (m_ui->filter->index() == criteriaItem)
        condition += m_ui->pnl_emp->BuildCriteriaFilter(m_services.messages);
    // The grid keeps its rows until the new ones are there.
    auto found =
        frame::recap::open(m_session.ADOConn, {condition, m_ui->dtp_tgl_aw->date(), m_ui->dtp_tgl_akh->date()});
    m_ui->dbg_rekap->setDataSet(found.get());
    sql_rekap = std::move(found);
    FitGridColumns(*m_ui->dbg_rekap);
}

void Tfrm_menu::criteriaChosen() {
    if (m_ui->filter->index() == base::FilterBlock::Pin)
        m_ui->pnl_emp->FillEmpCheckList(m_session);
}

void Tfrm_menu::btn_userlogClick() {
    Tfrm_userlog(m_services, m_session.login_id, base::payrollModule, this).exec();
}

void Tfrm_menu::Timer1Timer() {
    if (HandlersWait::isOn() || QApplication::activeModalWidget()) {
        Timer1.start();
        return;
    }
    if (!m_frm_warning)
        m_frm_warning = std::make_unique<Tfrm_warning>(m_services.language);
    m_frm_warning->appearBeside(*this);
}

void Tfrm_menu::setWorkspace(Icon icon, WorkspaceFactory factory) {
    Entrance& entrance = m_entrances[icon];
    entrance.image->setEnabled(bool(factory));
    entrance.label->setEnabled(bool(factory));
    entrance.make = std::move(factory);
}

void Tfrm_menu::CloseChildForms() {
    m_ui->pnl_tengah->show();
    if (m_workspace)
        m_workspace->close();
}

void Tfrm_menu::showRecap(bool visible) {
    m_ui->pnl_tengah->setVisible(visible);
    m_ui->pnl_judul->setVisible(visible);
}

void Tfrm_menu::openWorkspace(Icon icon) {
    if (!m_ui->pnl_atas->isEnabled())
        return;
    m_ui->pnl_atas->setEnabled(false);
    // Only after what waits in the event queue: the second of two fast clicks must find the panel disabled.
    QTimer::singleShot(0, m_ui->pnl_atas, [panel = m_ui->pnl_atas] { panel->setEnabled(true); });
    m_ui->filter->select(base::FilterBlock::Semua);
    CloseChildForms();
    m_workspace = m_entrances[icon].make(m_services, m_ui->centralwidget);
    connect(m_workspace, &Workspace::coversPanels, this, [this] { showRecap(false); });
    connect(m_workspace, &Workspace::closed, this, [this, closing = m_workspace.data()] {
        if (m_workspace == closing)
            m_workspace = nullptr;
        showRecap(true);
    });
    // Recap and workspace side by side, were it for a moment, would make the frame grow beyond a small screen.
    showRecap(false);
    m_ui->lay_frame->addWidget(m_workspace, 1);
    m_workspace->show();
}
