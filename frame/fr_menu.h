#pragma once

#include "base/notices.h"
#include "base/workspace.h"
#include "frame/fr_warning.h"
#include "frame/recap_colours.h"
#include "frame/statement_wait.h"
#include "toolkit/platform/host.h"
#include "toolkit/ui/named_text.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class ClickLabel;
class MagnifyingImage;

namespace Ui {
class frm_menu;
}

/// Makes a workspace; the parent frees it at the latest.
using WorkspaceFactory = std::function<Workspace*(base::Services& services, QWidget* parent)>;

/// The frame: owns the session that every screen borrows, and shows the attendance of a period while no workspace is
/// open.
class Tfrm_menu final : public QMainWindow {
    Q_OBJECT

public:
    static constexpr int panelCount = 5;
    /// The icons that open workspaces, from the left.
    enum Icon { KomponenGaji, ProsesPenggajian, PinjamanKaryawan, iconCount };

    Tfrm_menu(QString folder, base::Clock clock, base::UserSettingReader readUserSetting);
    ~Tfrm_menu() override;

    /// Proves that the databases can be reached. False where the program must end, with or without a message shown.
    [[nodiscard]] bool FormCreate();
    [[nodiscard]] base::Session& session() { return m_session; }
    /// Panel 0 names the current user to every screen.
    void setPanelText(int index, const QString& text);
    /// What the icon opens. An icon without a workspace is disabled.
    void setWorkspace(Icon icon, WorkspaceFactory factory);
    /// Shows the recap's panel and closes every workspace.
    void CloseChildForms();
    /// Restores the window if it is minimised and raises it.
    void comeForward();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    /// Enter presses the button in focus; in the period it searches.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FormActivate();
    void Image1Click() { openWorkspace(KomponenGaji); }
    void Image2Click() { openWorkspace(ProsesPenggajian); }
    void Image3Click() { openWorkspace(PinjamanKaryawan); }
    void btn_cariClick();
    void btn_userlogClick();
    [[nodiscard]] QColor dbg_rekapCustomDrawCell(const CellInView& cell) const {
        return frame::recap::cellColour(m_colours, cell);
    }
    void Timer1Timer();
    void criteriaChosen();

    /// What opens one workspace.
    struct Entrance {
        MagnifyingImage* image;
        ClickLabel* label;
        void (Tfrm_menu::*click)();
        WorkspaceFactory make{};
    };

    void setUpEntrances();
    void connectHandlers();
    void setUpRecap();
    void openWorkspace(Icon icon);
    void showRecap(bool visible);
    void read_change_lang();
    void read_periode();
    void read_session_cab();

    std::unique_ptr<Ui::frm_menu> m_ui;
    const QString m_folder;
    const base::UserSettingReader m_readUserSetting;
    StatementWait m_statement_wait{*this};
    base::Services m_services;
    base::Session& m_session = m_services.session;
    std::optional<platform::PingSocket> m_ping;
    std::array<Entrance, iconCount> m_entrances; ///< by Icon
    QPointer<Workspace> m_workspace;             ///< the one that is open
    frame::recap::ColourSettings m_colours;
    std::unique_ptr<data::SqlQuery> sql_rekap;
    QTimer Timer1; ///< shows the quick guide a second after the start
    std::unique_ptr<Tfrm_warning> m_frm_warning;
    NamedText txt_tanggal{this, u"txt_tanggal", u"Tanggal : "};
    NamedText txt_sd{this, u"txt_sd", u" s/d "};
    QToolButton* btn_pemberitahuan;
    base::Notices m_notices;
    bool first_activate = false;
};
