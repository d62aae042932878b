#pragma once

#include "base/workspace.h"
#include "structure/fr_isian_komponen.h"
#include "toolkit/data/client_data_set.h"

#include <memory>

namespace Ui {
class frm_komponen;
}

/// The salary structure: components today.
class Tfrm_komponen final : public Workspace {
    Q_OBJECT

public:
    Tfrm_komponen(base::Services& services, QWidget* parent);
    ~Tfrm_komponen() override;

protected:
    void FormActivate() override;
    void FormClose() override;

private:
    void btn_tambahClick();
    void btn_editClick();
    void btn_hapusClick();

    [[nodiscard]] bool isInUse() const;
    void set_up();
    void connect_handlers();
    void open_components();
    void open_form(ComponentTask task);

    std::unique_ptr<Ui::frm_komponen> m_ui;
    data::SqlQuery sql_komp;
    data::ClientDataSet cds_komp;
};
