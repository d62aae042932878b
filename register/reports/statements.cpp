#include "register/reports/statements.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace payroll {

QString processFilter(const QList<qint64>& processIds) {
    QStringList conditions;
    for (const qint64 id : processIds)
        conditions << u"process_id=%1 "_s.arg(id);
    return conditions.join(u"or "_s);
}

QString sqlDetail(const QString& filter) {
    return uR"(SELECT * FROM (select d.emp_id_auto, sum(d.tot_payroll) as jml_gaji, e.pin, e.nik, grp.no_rek
  , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
  , c.cab_name, d2.dept_name, d2.level_id, f.func_name
  , if(e.emp_status=0,'Aktif',if(e.emp_status=1,'Resign','')) as status
  , SUBSTRING_INDEX(e.pin, '', 1) as col_str
  , SUBSTRING_INDEX(e.pin, ' ', -1) + 0 as col_num
from z_pay_process_d as d
left join emp as e on d.emp_id_auto=e.emp_id_auto
left join cabang as c on e.cab_id_auto=c.cab_id_auto
left join dept as d2 on e.dept_id_auto=d2.dept_id_auto
left join func as f on e.func_id_auto=f.func_id_auto
left join z_pay_grp_emp as grp on d.emp_id_auto=grp.emp_id_auto
where %1
group by d.emp_id_auto
) as proses_d
order by col_str, col_num, emp_id_auto )"_s.arg(filter);
}

// The inner select leaves the run out: a line that is the same in two runs counts once.
QString sqlSubdetail(const QString& filter, ComponentType type) {
    return uR"(select emp_id_auto, com_id, sum(subtot_payroll) as jml_uang, kondisi, sum(jml_faktor) as faktor
  , no_urut, com_kode, com_name, pin, nik, jenis, cara_bayar, nama
from (select DISTINCT sd.emp_id_auto, sd.com_id, sd.subtot_payroll, sd.kondisi, sd.jml_faktor
  , c.com_kode, c.com_name, e.pin, e.nik, grp_comp.jenis, c.cara_bayar, c.no_urut
  , concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
from z_pay_process_sd as sd
left join z_pay_com as c on sd.com_id=c.com_id
left join emp as e on sd.emp_id_auto=e.emp_id_auto
left join z_pay_grp_emp as grp_emp on e.emp_id_auto=grp_emp.emp_id_auto
left join z_pay_grp_com as grp_comp on sd.com_id=grp_comp.com_id and grp_emp.grp_id=grp_comp.grp_id
where c.type=%1 and (%2)
) as sub_detail
group by emp_id_auto, com_id, kondisi, jenis, cara_bayar
order by no_urut )"_s.arg(QString::number(int(type)), filter);
}

} // namespace payroll
