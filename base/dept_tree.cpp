#include "base/dept_tree.h"

#include "toolkit/data/fault.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/sql_text.h"

#include <QHash>
#include <QPainter>
#include <QTreeWidget>

#include <map>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace base {

namespace {

const QString firstDepartment = u"Nama Perusahaan"_s;
const QString stepMark = u"\\\\\\\\"_s;
constexpr int storedPath = Qt::UserRole;

enum class Staff { None, Some };

struct Department {
    QString path;
    Staff staff;
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
    data::SqlQuery mq1(session.ADOConn, u"SELECT dept_name,d.dept_id_auto,if(isnull(emp_id_auto),0,1) as emp_id_auto "
                                        "FROM dept d LEFT JOIN emp e ON d.dept_id_auto=e.dept_id_auto "
                                        "group by d.dept_id_auto"_s);
    std::vector<Department> departments;
    for (mq1.open(); !mq1.isEof(); mq1.next())
        departments.push_back({mq1.text(u"dept_name"), mq1.integer(u"emp_id_auto") == 1 ? Staff::Some : Staff::None});
    return departments;
}

/// Puts departments below one another by their stored paths.
class Placer final {
public:
    Placer(QTreeWidgetItem* top, QStringList known) : m_top(top), m_known(std::move(known)) {}

    /// To be called level by level.
    void place(const Department& department) {
        const qsizetype mark = department.path.lastIndexOf(u'\\');
        QTreeWidgetItem* parent = mark < 0 ? m_top : m_entries.value(department.path.first(mark));
        QTreeWidgetItem* entry = parent ? add(parent, department.path.sliced(mark + 1)) : addOrphan(department.path);
        entry->setData(0, storedPath, department.path);
        entry->setIcon(0, department.staff == Staff::Some ? m_staffed : m_empty);
        if (!m_entries.contains(department.path))
            m_entries.insert(department.path, entry);
    }

private:
    static QTreeWidgetItem* add(QTreeWidgetItem* parent, const QString& text) {
        return new QTreeWidgetItem(parent, {text});
    }

    /// Under the root with its whole path, where it can be seen and chosen. It is told once for a tree.
    QTreeWidgetItem* addOrphan(const QString& path) {
        if (!m_known.contains(path))
            fault::dropFault("tempat sebuah departemen dalam susunannya", [&] { throw data::Fault(path); });
        return add(m_top->childCount() > 0 ? m_top->child(0) : m_top, path);
    }

    QTreeWidgetItem* m_top;
    const QStringList m_known;
    const QIcon m_empty = iconFor(Staff::None);
    const QIcon m_staffed = iconFor(Staff::Some);
    QHash<QString, QTreeWidgetItem*> m_entries; ///< by stored path
};

/// The orphans that a tree shows: no other entry has more than one step of its path as its text.
QStringList orphansIn(const QTreeWidgetItem* top) {
    QStringList paths;
    const QTreeWidgetItem* root = top->child(0);
    for (int i = 0; root && i < root->childCount(); ++i)
        if (root->child(i)->text(0).contains(u'\\'))
            paths << root->child(i)->text(0);
    return paths;
}

/// Level by level, so that rows may come in any order.
void placeAll(QTreeWidgetItem* top, const std::vector<Department>& departments, const QStringList& known) {
    std::map<qsizetype, std::vector<const Department*>> levels;
    for (const Department& department : departments)
        levels[department.path.count(u'\\')].push_back(&department);
    Placer placer(top, known);
    for (const auto& [level, members] : levels)
        for (const Department* department : members)
            placer.place(*department);
}

void insertRoot(Session& session, QTreeWidgetItem* top) {
    fault::dropFault("departemen pertama", [&] {
        session.ADOCom_update.execute(u"insert into dept(dept_id_auto,dept_name) values(1,"_s +
                                      quotedSqlText(firstDepartment) + u')');
    });
    (new QTreeWidgetItem(top, {firstDepartment}))->setData(0, storedPath, firstDepartment);
}

} // namespace

void FillDeptTree(TreeBox& box, Session& session) {
    const std::vector<Department> departments = readDepartments(session);
    QTreeWidgetItem* top = box.tree().invisibleRootItem();
    const QStringList known = orphansIn(top);
    box.clearTree();
    if (departments.empty())
        insertRoot(session, top);
    else
        placeAll(top, departments, known);
    QTreeWidgetItem* first = box.tree().topLevelItem(0);
    box.tree().expandRecursively(box.tree().indexFromItem(first));
    box.choose(first);
}

QString deptPath(const TreeBox& box) {
    const QString path = box.chosen() ? box.chosen()->data(0, storedPath).toString() : QString();
    return QString(path).replace(u"\\"_s, stepMark);
}

} // namespace base
