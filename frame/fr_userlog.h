#pragma once

#include "base/screen.h"

#include <memory>

namespace Ui {
class frm_userlog;
}

/// Shows the suite's audit log, and lets administrators delete its old rows. Everybody else sees his own rows only.
class Tfrm_userlog final : public Screen {
    Q_OBJECT

public:
    /// The login whose rows are chosen at first, and the module number likewise.
    Tfrm_userlog(base::Services& services, QString login_id, int module, QWidget* parent);
    ~Tfrm_userlog() override;

protected:
    void FormActivate() override;

private:
    void lookup_userCloseUp();
    void btn_cariClick();
    void btn_hapusClick();
    void btn_bukaClick();

    void set_hak_akses();
    void set_modul();
    void set_tanggal();
    [[nodiscard]] QString kondisi() const;

    std::unique_ptr<Ui::frm_userlog> m_ui;
    const QString m_user;
    const int m_module;
    data::SqlQuery sql_user;
    data::SqlQuery sql_userlog;
    const QString m_baseSql;
    QString m_login_id; ///< chosen in lookup_user, empty for none
};
