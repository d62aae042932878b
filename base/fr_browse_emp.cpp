#include "base/fr_browse_emp.h"

#include "toolkit/ui/handler.h"
#include "ui_fr_browse_emp.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString withOpenLoan =
    u" and emp_id_auto in (select distinct emp_id_auto from zx_kredit_m where status_lunas=0) "_s;

} // namespace

Tfrm_browse_emp::Tfrm_browse_emp(base::Services& services, BrowseMode mode, HandOver handOver, QWidget* parent) :
    Screen(services, parent), m_ui(std::make_unique<Ui::frm_browse_emp>()), browse_mode(mode),
    m_handOver(std::move(handOver)), sql_emp(services.session.ADOConn, QString::fromUtf8(R"(SELECT * FROM (
        SELECT e.emp_id_auto, e.pin, e.nik, e.emp_status , e.cab_id_auto, e.func_id_auto, c.cab_name, d.dept_name,
            d.level_id, f.func_name , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
        FROM emp as e left join cabang as c on e.cab_id_auto=c.cab_id_auto
            left join dept as d on e.dept_id_auto=d.dept_id_auto
            left join func as f on e.func_id_auto=f.func_id_auto ) karyawan )")),
    m_baseSql(sql_emp.sql()) {
    m_ui->setupUi(this);
    m_ui->filter->attach(services.session);
    m_ui->dbg_d->setColumns({{u"pin"_s, u"PIN"_s},
                             {u"nik"_s, u"NIK"_s},
                             {u"nama"_s, u"Nama"_s},
                             {u"cab_name"_s, u"Cabang"_s},
                             {u"level_id"_s, u"Departemen"_s},
                             {u"func_name"_s, u"Jabatan"_s}});
    m_ui->dbg_d->setDataSet(&cds_emp);
    onEvent(m_ui->filter, &base::FilterBlock::searchWanted, this, &Tfrm_browse_emp::btn_cariClick);
    onEvent(m_ui->btn_ok, &QPushButton::clicked, this, &Tfrm_browse_emp::btn_okClick);
    onEvent(m_ui->dbg_d, &DataGrid::activated, this, &Tfrm_browse_emp::btn_okClick);
    connect(m_ui->btn_tutup, &QPushButton::clicked, this, &QDialog::close);
    m_services.language.ApplyLanguage(*this);
}

Tfrm_browse_emp::~Tfrm_browse_emp() = default;

void Tfrm_browse_emp::FormActivate() {
    m_ui->filter->openLookups();
    m_ui->filter->select(base::FilterBlock::Semua);
    btn_cariClick();
}

void Tfrm_browse_emp::btn_cariClick() {
    QString condition = m_ui->filter->baseCondition() + m_ui->filter->conditionByKey();
    if (browse_mode == BrowseMode::WithOpenLoan)
        condition += withOpenLoan;
    sql_emp.setSql(m_baseSql + condition + u" order by emp_id_auto"_s);
    cds_emp.reopen();
    FitGridColumns(*m_ui->dbg_d);
}

void Tfrm_browse_emp::btn_okClick() {
    if (!cds_emp.isEmpty())
        m_handOver(cds_emp.text(u"nama"));
    close();
}
