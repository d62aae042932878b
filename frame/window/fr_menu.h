#pragma once

#include "frame/base/services.h"
#include "toolkit/platform/host.h"

#include <QMainWindow>

#include <memory>
#include <optional>

namespace Ui {
class frm_menu;
}

/// The frame: owns the session that every screen borrows, and shows the attendance of a period while no workspace is
/// open.
class Tfrm_menu final : public QMainWindow {
    Q_OBJECT

public:
    static constexpr int panelCount = 5;

    Tfrm_menu(QString folder, frame::Clock clock, frame::UserSettingReader readUserSetting);
    ~Tfrm_menu() override;

    /// Proves that the databases can be reached. False where the program must end, with or without a message shown.
    [[nodiscard]] bool FormCreate();
    [[nodiscard]] frame::Session& session() { return m_session; }
    /// Panel 0 names the current user to every screen.
    void setPanelText(int index, const QString& text);
    /// Restores the window if it is minimised and raises it.
    void comeForward();

protected:
    bool event(QEvent* event) override;

private:
    void FormActivate();
    void btn_userlogClick();
    void read_change_lang();
    void read_periode();
    void read_session_cab();

    std::unique_ptr<Ui::frm_menu> m_ui;
    const QString m_folder;
    const frame::UserSettingReader m_readUserSetting;
    frame::Services m_services;
    frame::Session& m_session = m_services.session;
    std::optional<platform::PingSocket> m_ping;
    data::SqlQuery sql_cab{m_session.ADOConn};
    data::SqlQuery sql_jbt{m_session.ADOConn};
    qint32 filter_cab_id = 0; ///< branch chosen in lookup_cab, 0 for none
    bool first_activate = false;
};
