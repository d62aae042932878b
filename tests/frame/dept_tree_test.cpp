#include "base/dept_tree.h"
#include "tests/frame/fixture.h"

#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// One line per entry, indented by level; the chosen one marked.
void print(const TreeBox& box, const QTreeWidgetItem* parent, int level, QStringList& lines) {
    for (int i = 0; i < parent->childCount(); ++i) {
        const QTreeWidgetItem* entry = parent->child(i);
        lines << QString(level, u'.') + entry->text(0) + (entry == box.chosen() ? u" <"_s : QString());
        print(box, entry, level + 1, lines);
    }
}

std::string treeOf(TreeBox& box) {
    QStringList lines;
    print(box, box.tree().invisibleRootItem(), 0, lines);
    return lines.join(u'|').toStdString();
}

class DepartmentTree : public testing::Test {
protected:
    /// Fills the box from these rows of dept alone.
    std::string filled(const char* rows) {
        company.database.run(u"delete from dept"_s);
        if (*rows)
            company.database.run(u"insert into dept(dept_id_auto, dept_name) values "_s + QString::fromUtf8(rows));
        base::FillDeptTree(box, company.services.session);
        return treeOf(box);
    }

    SmallCompany company;
    TreeBox box;
};

TEST_F(DepartmentTree, StandsWhateverTheOrderOfTheRowsOfALevel) {
    EXPECT_EQ(filled(R"((9,'PT'), (8,'PT\\B'), (2,'PT\\A\\X'), (1,'PT\\A'), (3,'PT\\B\\X'), (4,'PT\\B\\X\\Y'))"),
              "PT <|.A|..X|.B|..X|...Y");
    EXPECT_EQ(filled(R"((1,'PT\\A'), (2,'Dua'), (3,'PT'), (4,'Dua\\A'))"), "Dua <|.A|PT|.A");
}

TEST_F(DepartmentTree, OrphanStandsUnderTheRootAndIsSearchedByItsStoredPath) {
    EXPECT_EQ(filled(R"((1,'PT'), (2,'PT\\A'), (3,'PT\\a\\Y'), (4,'PT\\A\\Z'), (5,'PT\\a\\Y\\X'))"),
              R"(PT <|.A|..Z|.PT\a\Y|..X)");
    box.choose(box.tree().findItems(u"X"_s, Qt::MatchExactly | Qt::MatchRecursive).first());
    EXPECT_EQ(base::deptPath(box), uR"(PT\\\\a\\\\Y\\\\X)"_s);
    EXPECT_EQ(filled(R"((2,'Lain\\B'), (1,'Lain\\A'))"), R"(Lain\A <|.Lain\B)");
    EXPECT_EQ(base::deptPath(box), uR"(Lain\\\\A)"_s);
}

TEST_F(DepartmentTree, SuiteWithoutDepartmentsGetsItsRoot) {
    EXPECT_EQ(filled(""), "Nama Perusahaan <");
    EXPECT_EQ(company.database.rows(u"select * from dept"_s), QStringList(u"1\tNama Perusahaan\tNULL"_s));
}

TEST_F(DepartmentTree, DepartmentsWithEmployeesHaveAPictureOfTheirOwn) {
    company.database.run(u"delete from emp where dept_id_auto=4"_s);
    base::FillDeptTree(box, company.services.session);
    const auto picture = [this](const QString& text) {
        return box.tree().findItems(text, Qt::MatchExactly | Qt::MatchRecursive).first()->icon(0).cacheKey();
    };
    EXPECT_EQ(picture(u"Produksi"_s), picture(u"Las"_s));
    EXPECT_NE(picture(u"Produksi"_s), picture(u"Produksi Dua"_s));
}

} // namespace
