#pragma once

#include "base/screen.h"
#include "toolkit/data/client_data_set.h"

#include <functional>
#include <memory>

namespace Ui {
class frm_browse_emp;
}

/// Whom the browser offers.
enum class BrowseMode {
    Everybody = 0,
    WithOpenLoan = 1 ///< only employees with a loan that is not paid off
};

/// Finds an employee and hands his name to whoever opened the browser. The name is all that is handed over: of two
/// employees of one name the opener gets one of them.
class Tfrm_browse_emp final : public Screen {
    Q_OBJECT

public:
    using HandOver = std::function<void(const QString& nama)>;

    Tfrm_browse_emp(base::Services& services, BrowseMode mode, HandOver handOver, QWidget* parent);
    ~Tfrm_browse_emp() override;

protected:
    void FormActivate() override;

private:
    void btn_cariClick();
    void btn_okClick();

    std::unique_ptr<Ui::frm_browse_emp> m_ui;
    const BrowseMode browse_mode;
    const HandOver m_handOver;
    data::SqlQuery sql_emp;
    const QString m_baseSql;
    data::ClientDataSet cds_emp{{.query = &sql_emp}};
};
