#include "base/paged_workspace.h"
#include "tests/frame/fixture.h"

#include <QLabel>
#include <QTabWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Branches with their employees, and functions.
class Pages final : public PagedWorkspace {
public:
    explicit Pages(base::Services& services) :
        PagedWorkspace(services, nullptr), branches(services.session.ADOConn, u"select * from cabang"_s),
        employees(services.session.ADOConn,
                  u"select pin from emp where cab_id_auto=:cab_id_auto order by emp_id_auto"_s),
        functions(services.session.ADOConn, u"select * from func"_s), tabs(this) {
        for (DataGrid* grid : {&list, &details, &second})
            grid->setColumns({{u"pin"_s, u"PIN"_s}});
        list.setDataSet(&branches);
        details.setDataSet(&employees);
        second.setDataSet(&functions);
        employees.follow(branches, {u"cab_id_auto"_s});
        tabs.addTab(new QWidget, u"1"_s);
        tabs.addTab(new QWidget, u"2"_s);
        setPages(tabs, {{.list = &list,
                         .details = &details,
                         .title = &title,
                         .titleText = [this] { return branches.text(u"cab_name"); },
                         .rowShown = [this] { ++rowsShown; }},
                        {.list = &second}});
    }
    using PagedWorkspace::reload;

    std::string shown() {
        return u"%1 %2 %3"_s.arg(title.text()).arg(employees.rowCount()).arg(rowsShown).toStdString();
    }

    data::SqlQuery branches;
    data::SqlQuery employees;
    data::SqlQuery functions;
    DataGrid list;
    DataGrid details;
    DataGrid second;
    QLabel title;
    QTabWidget tabs;
    int rowsShown = 0;
};

TEST(PagedWorkspace, DetailsFollowTheListAndThePageThatIsTurnedToIsReadAnew) {
    SmallCompany company;
    Pages pages(company.services);
    pages.reload();
    EXPECT_EQ(pages.shown(), "Pusat 4 1");
    pages.list.setCurrentIndex(pages.list.model()->index(1, 0));
    EXPECT_EQ(pages.shown(), "Cabang D'Or 3 2");
    pages.tabs.setCurrentIndex(1);
    EXPECT_TRUE(pages.functions.isOpen());
    company.database.run(u"update cabang set cab_name='Gudang' where cab_id_auto=1"_s);
    pages.tabs.setCurrentIndex(0);
    EXPECT_EQ(pages.shown(), "Gudang 4 3");
    company.database.run(u"rename table emp to emp_lama"_s);
    EXPECT_NE(messageDuring([&] { pages.list.setCurrentIndex(pages.list.model()->index(1, 0)); }).text, QString());
    EXPECT_EQ(pages.shown(), "Cabang D'Or 0 3") << "employees of one branch below another";
}

} // namespace
