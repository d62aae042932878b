#include "frame/base/dept_tree.h"

#include "toolkit/data/fault.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/sql_text.h"

#include <QPainter>
#include <QTreeWidget>

#include <vector>

namespace frame {

namespace {

const QString firstDepartment = QStringLiteral("Nama Perusahaan");
const QString stepMark = QStringLiteral("\\\\\\\\");

enum class Staff { None, Some };

struct Department {
    QString path;
    Staff staff;
    bool placed = false;
};

QPixmap mark(Staff staff, const QColor& colour) {
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 3));
    painter.setBrush(staff == Staff::Some ? QBrush(colour) : Qt::NoBrush);
    painter.drawEllipse(8, 8, 16, 16);
    return picture;
}

/// A disc for a department with employees, a ring for one without.
QIcon iconFor(Staff staff) {
    QIcon icon(mark(staff, QColor(0x0f, 0x6b, 0x8f)));
    icon.addPixmap(mark(staff, Qt::white), QIcon::Selected);
    return icon;
}

std::vector<Department> readDepartments(Session& session) {
    data::SqlQuery mq1(session.ADOConn,
                       QStringLiteral("SELECT dept_name,d.dept_id_auto,if(isnull(emp_id_auto),0,1) as emp_id_auto "
                                      "FROM dept d LEFT JOIN emp e ON d.dept_id_auto=e.dept_id_auto "
                                      "group by d.dept_id_auto"));
    std::vector<Department> departments;
    for (mq1.open(); !mq1.isEof(); mq1.next())
        departments.push_back({mq1.text(u"dept_name"), mq1.integer(u"emp_id_auto") == 1 ? Staff::Some : Staff::None});
    return departments;
}

/// The entry with the text among the siblings; their common parent is the one given.
QTreeWidgetItem* childWithText(QTreeWidgetItem* parent, QStringView text) {
    for (int i = 0; i < parent->childCount(); ++i)
        if (parent->child(i)->text(0) == text)
            return parent->child(i);
    throw data::Fault(QStringLiteral("no department %1 to stand under").arg(text));
}

void place(QTreeWidgetItem* top, Department& department, const QIcon& icon) {
    QStringView rest = department.path;
    QTreeWidgetItem* parent = top;
    for (qsizetype mark = rest.indexOf(u'\\'); mark >= 0; mark = rest.indexOf(u'\\')) {
        parent = childWithText(parent, rest.first(mark));
        rest = rest.sliced(mark + 1);
    }
    auto* entry = new QTreeWidgetItem(parent, {rest.toString()});
    entry->setIcon(0, icon);
    department.placed = true;
}

/// Level by level, so that rows may come in any order.
void placeAll(QTreeWidgetItem* top, std::vector<Department> departments) {
    const QIcon empty = iconFor(Staff::None);
    const QIcon staffed = iconFor(Staff::Some);
    std::size_t left = departments.size();
    for (qsizetype level = 0; left > 0; ++level)
        for (Department& department : departments) {
            if (department.placed || department.path.count(u'\\') != level)
                continue;
            place(top, department, department.staff == Staff::Some ? staffed : empty);
            --left;
        }
}

void insertRoot(Session& session, QTreeWidgetItem* top) {
    fault::dropFault("the first department", [&] {
        session.ADOCom_update.execute(QStringLiteral("insert into dept(dept_id_auto,dept_name) values(1,") +
                                      quotedSqlText(firstDepartment) + u')');
    });
    new QTreeWidgetItem(top, {firstDepartment});
}

} // namespace

void FillDeptTree(TreeBox& box, Session& session) {
    box.clearTree();
    QTreeWidgetItem* top = box.tree().invisibleRootItem();
    const std::vector<Department> departments = readDepartments(session);
    if (departments.empty())
        insertRoot(session, top);
    else
        placeAll(top, departments);
    QTreeWidgetItem* first = box.tree().topLevelItem(0);
    box.tree().expandRecursively(box.tree().indexFromItem(first));
    box.choose(first);
}

QString deptPath(const TreeBox& box) {
    QString path = box.text();
    for (const QTreeWidgetItem* above = box.chosen() ? box.chosen()->parent() : nullptr; above; above = above->parent())
        path.prepend(above->text(0) + stepMark);
    return path;
}

} // namespace frame
