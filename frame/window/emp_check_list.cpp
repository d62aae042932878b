#include "frame/window/emp_check_list.h"

#include "toolkit/ui/handler.h"

#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

const frame::MessageText tooMany{u"frm_menu"_qs, 51, u"Data kriteria maksimal berisi 200 karyawan."_qs};
const frame::MessageText noEmployees{u"frm_menu"_qs, 52, u"Data kriteria kosong"_qs};

const QString nobody = QStringLiteral(" and emp_id_auto=-1 ");

void addUnticked(QListWidget& list, const QString& text) {
    auto* item = new QListWidgetItem(text, &list);
    item->setCheckState(Qt::Unchecked);
}

} // namespace

EmpCheckList::EmpCheckList(QWidget* parent) :
    QWidget(parent), clb_emp(new QListWidget), clb_emp_id(new QListWidget), lbl_jml(new QLabel(QStringLiteral("0"))) {
    clb_emp->setObjectName(QStringLiteral("clb_emp"));
    clb_emp_id->setObjectName(QStringLiteral("clb_emp_id"));
    lbl_jml->setObjectName(QStringLiteral("lbl_jml"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(clb_emp);
    layout->addWidget(clb_emp_id);
    layout->addWidget(lbl_jml);
    clb_emp_id->hide();
    connect(clb_emp, &QListWidget::itemChanged, this, [this] { runHandler(this, [this] { clb_empClickCheck(); }); });
}

void EmpCheckList::FillEmpCheckList(frame::Session& session) {
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
        addUnticked(*clb_emp, QStringLiteral("[%1] %2").arg(sql.text(u"pin"), sql.text(u"nama")));
        addUnticked(*clb_emp_id, sql.text(u"emp_id_auto"));
    }
    lbl_jml->setText(QStringLiteral("0"));
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

QString EmpCheckList::BuildCriteriaFilter(frame::Messages& messages) {
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
    return QStringLiteral(" and emp_id_auto IN (") + ticked.join(QStringLiteral(", ")) + QStringLiteral(") ");
}
