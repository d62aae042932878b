#include "frame/base/fr_browse_emp.h"

#include "toolkit/ui/handler.h"
#include "ui_fr_browse_emp.h"

#include <utility>

namespace {

const QString withOpenLoan =
    QStringLiteral(" and emp_id_auto in (select distinct emp_id_auto from zx_kredit_m where status_lunas=0) ");

} // namespace

Tfrm_browse_emp::Tfrm_browse_emp(frame::Services& services, BrowseMode mode, HandOver handOver, QWidget* parent) :
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
    m_ui->dbg_d->setColumns({{u"dbg_dpin"_qs, u"pin"_qs, u"PIN"_qs},
                             {u"dbg_dnik"_qs, u"nik"_qs, u"NIK"_qs},
                             {u"dbg_dnama"_qs, u"nama"_qs, u"Nama"_qs},
                             {u"dbg_dcab_name"_qs, u"cab_name"_qs, u"Cabang"_qs},
                             {u"dbg_dlevel_id"_qs, u"level_id"_qs, u"Departemen"_qs},
                             {u"dbg_dfunc_name"_qs, u"func_name"_qs, u"Jabatan"_qs}});
    m_ui->dbg_d->setDataSet(&cds_emp);
    onEvent(m_ui->filter, &frame::FilterBlock::searchWanted, this, &Tfrm_browse_emp::btn_cariClick);
    onEvent(m_ui->btn_ok, &QPushButton::clicked, this, &Tfrm_browse_emp::btn_okClick);
    onEvent(m_ui->dbg_d, &DataGrid::activated, this, &Tfrm_browse_emp::btn_okClick);
    connect(m_ui->btn_tutup, &QPushButton::clicked, this, &QDialog::close);
    m_services.language.ApplyLanguage(*this);
}

Tfrm_browse_emp::~Tfrm_browse_emp() = default;

void Tfrm_browse_emp::FormActivate() {
    m_ui->filter->openLookups();
    m_ui->filter->select(frame::FilterBlock::Semua);
    btn_cariClick();
}

void Tfrm_browse_emp::btn_cariClick() {
    QString condition = m_ui->filter->baseCondition() + m_ui->filter->conditionByKey();
    if (browse_mode == BrowseMode::WithOpenLoan)
        condition += withOpenLoan;
    sql_emp.setSql(m_baseSql + condition + u" order by emp_id_auto"_qs);
    cds_emp.reopen();
    FitGridColumns(*m_ui->dbg_d);
}

void Tfrm_browse_emp::btn_okClick() {
    if (!cds_emp.isEmpty())
        m_handOver(cds_emp.text(u"nama"));
    close();
}
