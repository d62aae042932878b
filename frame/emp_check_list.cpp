#include "frame/emp_check_list.h"

#include "toolkit/ui/check_list.h"
#include "toolkit/ui/handler.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const base::MessageText tooMany{u"frm_menu"_s, 51, u"Data kriteria maksimal berisi 200 karyawan."_s};
const base::MessageText noEmployees{u"frm_menu"_s, 52, u"Data kriteria kosong"_s};

const QString nobody = u" and emp_id_auto=-1 "_s;

} // namespace

EmpCheckList::EmpCheckList(QWidget* parent) : QWidget(parent), clb_emp(new CheckList), lbl_jml(new QLabel(u"0"_s)) {
    clb_emp->setObjectName(u"clb_emp"_s);
    lbl_jml->setObjectName(u"lbl_jml"_s);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(clb_emp);
    layout->addWidget(lbl_jml);
    connect(clb_emp, &CheckList::ticksChanged, this,
            [this](int ticked) { runHandler(this, [this, ticked] { lbl_jml->setNum(ticked); }); });
}

void EmpCheckList::FillEmpCheckList(base::Session& session) {
    clb_emp->fill({});
    data::SqlQuery& sql = session.sql_temp;
    sql.openSql(QString::fromUtf8(R"(SELECT e.emp_id_auto, e.pin, c.cab_name, d.dept_name, f.func_name ,
            concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
        FROM emp as e left join cabang as c on e.cab_id_auto=c.cab_id_auto
            left join dept as d on e.dept_id_auto=d.dept_id_auto
            left join func as f on e.func_id_auto=f.func_id_auto
        where e.emp_id_auto<>-1
        order by (SUBSTRING_INDEX(e.pin, '', 1)), (SUBSTRING_INDEX(e.pin, ' ', -1)+0), e.first_name, e.last_name,
            e.emp_id_auto )"));
    std::vector<CheckList::Entry> entries;
    for (; !sql.isEof(); sql.next())
        entries.push_back({u"[%1] %2"_s.arg(sql.text(u"pin"), sql.text(u"nama")), sql.integer32(u"emp_id_auto")});
    clb_emp->fill(entries);
}

QString EmpCheckList::BuildCriteriaFilter(base::Messages& messages) {
    if (clb_emp->count() == 0) {
        messages.inform(window(), noEmployees);
        return nobody;
    }
    QStringList ticked;
    for (const int emp_id_auto : clb_emp->tickedKeys())
        ticked << QString::number(emp_id_auto);
    if (ticked.size() > mostTicked)
        messages.inform(window(), tooMany);
    if (ticked.isEmpty() || ticked.size() > mostTicked)
        return nobody;
    return u" and emp_id_auto IN ("_s + ticked.join(u", "_s) + u") "_s;
}
