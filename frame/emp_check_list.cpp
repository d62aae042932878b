#include "frame/emp_check_list.h"

#include "toolkit/ui/handler.h"

#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const base::MessageText tooMany{u"frm_menu"_s, 51, u"Data kriteria maksimal berisi 200 karyawan."_s};
const base::MessageText noEmployees{u"frm_menu"_s, 52, u"Data kriteria kosong"_s};

const QString nobody = u" and emp_id_auto=-1 "_s;

void addUnticked(QListWidget& list, const QString& text) {
    auto* item = new QListWidgetItem(text, &list);
    item->setCheckState(Qt::Unchecked);
}

} // namespace

EmpCheckList::EmpCheckList(QWidget* parent) :
    QWidget(parent), clb_emp(new QListWidget), clb_emp_id(new QListWidget), lbl_jml(new QLabel(u"0"_s)) {
    clb_emp->setObjectName(u"clb_emp"_s);
    clb_emp_id->setObjectName(u"clb_emp_id"_s);
    lbl_jml->setObjectName(u"lbl_jml"_s);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(clb_emp);
    layout->addWidget(clb_emp_id);
    layout->addWidget(lbl_jml);
    clb_emp_id->hide();
    connect(clb_emp, &QListWidget::itemChanged, this, [this] { runHandler(this, [this] { clb_empClickCheck(); }); });
}

void EmpCheckList::FillEmpCheckList(base::Session& session) {
    const QSignalBlocker filling(clb_emp);
    clb_emp->clear();
    clb_emp_id->clear();
    data::SqlQuery& sql = session.sql_temp;
    sql.openSql(QString::fromUtf8(R"(SELECT e.emp_id_auto, e.pin, c.cab_name, d.dept_name, f.func_name ,
            concat(ifnull(e.first_name,''),' ',ifnull(e.last_name, '')) as nama
        FROM emp as e left join cabang as c on e.cab_id_auto=c.cab_id_auto
            left join dept as d on e.dept_id_auto=d.dept_id_auto
            left join func as f on e.func_id_auto=f.func_id_auto
        where e.emp_id_auto<>-1
        order by (SUBSTRING_INDEX(e.pin, '', 1)), (SUBSTRING_INDEX(e.pin, ' ', -1)+0), e.first_name, e.last_name,
            e.emp_id_auto )"));
    for (; !sql.isEof(); sql.next()) {
        addUnticked(*clb_emp, u"[%1] %2"_s.arg(sql.text(u"pin"), sql.text(u"nama")));
        addUnticked(*clb_emp_id, sql.text(u"emp_id_auto"));
    }
    lbl_jml->setText(u"0"_s);
}

void EmpCheckList::clb_empClickCheck() {
    int ticked = 0;
    for (int i = 0; i < clb_emp->count(); ++i) {
        const Qt::CheckState state = clb_emp->item(i)->checkState();
        clb_emp_id->item(i)->setCheckState(state);
        ticked += state == Qt::Checked;
    }
    lbl_jml->setText(QString::number(ticked));
}

QString EmpCheckList::BuildCriteriaFilter(base::Messages& messages) {
    if (clb_emp_id->count() == 0) {
        messages.inform(window(), noEmployees);
        return nobody;
    }
    QStringList ticked;
    for (int i = 0; i < clb_emp_id->count(); ++i)
        if (clb_emp_id->item(i)->checkState() == Qt::Checked)
            ticked << clb_emp_id->item(i)->text();
    if (ticked.size() > mostTicked)
        messages.inform(window(), tooMany);
    if (ticked.isEmpty() || ticked.size() > mostTicked)
        return nobody;
    return u" and emp_id_auto IN ("_s + ticked.join(u", "_s) + u") "_s;
}
