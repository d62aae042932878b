#pragma once

#include "base/entry_screen.h"
#include "base/leave_check.h"

#include <functional>
#include <memory>

namespace Ui {
class frm_isian_komponen;
}

/// What the component screen is opened for, and what its opener does after a save.
struct ComponentTask {
    EntryMode mode = EntryMode::New;
    int com_id = 0; ///< of the component to edit
    std::function<void()> refresh{};
    std::function<void()> goToLast{};
};

/// One component of the catalogue: its name, its side of the slip, its place, and where it is offered.
class Tfrm_isian_komponen final : public EntryScreen {
    Q_OBJECT

public:
    Tfrm_isian_komponen(base::Services& services, ComponentTask task, QWidget* parent);
    ~Tfrm_isian_komponen() override;

protected:
    void openEntry() override;

private:
    void chb_take_home_payClick();
    void chb_pinjamanClick();
    void btn_simpanClick();

    void connect_handlers();
    void add_leave_checks();
    void siapkan_baru();
    void muat();
    void set_loaded(const QString& no_urut, const QString& nama, const QString& kode);
    [[nodiscard]] bool cek_isian();
    [[nodiscard]] QString statement() const;

    std::unique_ptr<Ui::frm_isian_komponen> m_ui;
    const ComponentTask m_task;
    qint64 m_com_id = 0;
    qint64 m_no_urut = 0; ///< as loaded
    base::LeaveCheck* m_cek_no_urut = nullptr;
    base::LeaveCheck* m_cek_nama = nullptr;
    base::LeaveCheck* m_cek_kode = nullptr;
};
