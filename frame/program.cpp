#include "frame/program.h"

#include "base/log.h"
#include "frame/fr_menu.h"
#include "register/fr_hitung_gaji.h"
#include "structure/fr_komponen.h"

#include <QApplication>
#include <QIcon>

#include <utility>

using namespace Qt::StringLiterals;

namespace frame {

namespace {
constexpr int firstPanelArgument = 2;
}

QString launchToken() {
    return u"Amber#reef73:~QLD~41|68"_s;
}

Program::Program(ProgramEnvironment environment) :
    m_environment(std::move(environment)), m_instance(m_environment.programPath) {}

Program::~Program() = default;

QString Program::argument(int position) const {
    return m_environment.arguments.value(position);
}

bool Program::isAdmitted() {
    if (m_instance.CheckPreviousInstance()) {
        qCInfo(base::startLog) << "ended: another instance of this path is running and was asked to come forward";
        return false;
    }
    if (argument(1) == launchToken())
        return true;
    qCInfo(base::startLog) << "ended: the launch token is missing or wrong";
    return false;
}

bool Program::openFrame() {
    QApplication::setApplicationName(u"Orvane Payroll"_s);
    m_frame = std::make_unique<Tfrm_menu>(m_environment.folder, m_environment.clock, m_environment.readUserSetting);
    QApplication::setWindowIcon(QIcon(u":/window/icons/program.svg"_s));
    if (!m_frame->FormCreate()) {
        qCInfo(base::startLog) << "ended: no session with the database";
        m_frame.reset();
        return false;
    }
    m_frame->session().ADOConn.close();
    m_frame->session().ADOConn_lang.close();
    for (int panel = 0; panel < Tfrm_menu::panelCount; ++panel)
        m_frame->setPanelText(panel, argument(firstPanelArgument + panel));
    m_frame->setWorkspace(Tfrm_menu::KomponenGaji, [](base::Services& services, QWidget* parent) -> Workspace* {
        return new Tfrm_komponen(services, parent);
    });
    m_frame->setWorkspace(Tfrm_menu::ProsesPenggajian, [](base::Services& services, QWidget* parent) -> Workspace* {
        return new Tfrm_hitung_gaji(services, parent);
    });
    QObject::connect(&m_instance, &platform::InstanceGuard::raiseRequested, m_frame.get(), &Tfrm_menu::comeForward);
    m_instance.listen();
    m_frame->showMaximized();
    return true;
}

void Program::closeAll() {
    m_frame.reset();
}

} // namespace frame
