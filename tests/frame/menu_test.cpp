// The frame itself: whom a session sees, and the search for ticked employees.
#include "base/filter_block.h"
#include "frame/emp_check_list.h"
#include "frame/fr_menu.h"
#include "tests/frame/fixture.h"
#include "toolkit/ui/data_grid.h"
#include "toolkit/ui/lookup_box.h"

#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A started frame on the company for a user with the per-user value.
struct Started {
    Started(const SmallCompany& company, const QString& value) :
        menu(folder.path(), company.services.session.clock, [value](const QString&) {
            if (value == u"!")
                throw std::runtime_error("cannot be read");
            return value;
        }) {
        company.database.writeSettingsFile(folder.path());
        if (!menu.FormCreate())
            qFatal("no session");
        fault = messageDuring([this] {
            menu.show();
            (void)QTest::qWaitForWindowActive(&menu, 2000);
        });
    }

    [[nodiscard]] int rowsAfterSearch() {
        Q_EMIT child<base::FilterBlock>(menu, u"filter").searchWanted();
        return child<DataGrid>(menu, u"dbg_rekap").rows().rowCount();
    }

    QTemporaryDir folder;
    Tfrm_menu menu;
    Message fault; ///< shown by the first activation
};

TEST(SessionBranch, StandsBehindTheFirstColonOfThePerUserValue) {
    SmallCompany company;
    company.database.run(u"update emp set cab_id_auto=9 where emp_id_auto=2"_s);
    struct Case {
        const char* value;
        bool limited;
        const char* branch;
        int employees;
        const char* fault = "";
    };
    const Case cases[] = {{"", false, "", 5},
                          {"  ", false, "", 5},
                          {"{3B9F17C4-A2D6-4E18-9C07-51EE40B7A26D}", false, "", 5},
                          {"3", true, "Cabang D'Or", 3},
                          {"{3B9F17C4-A2D6-4E18-9C07-51EE40B7A26D}:1", true, "Pusat", 1},
                          {"x:9", true, "", 0},
                          {"0", true, "", 0},
                          {"x:tiga:3", true, "", 0, "'tiga:3' is not a valid integer value"},
                          {"!", true, "", 0, "cannot be read"}};
    for (const Case& one : cases) {
        Started started(company, QString::fromUtf8(one.value));
        EXPECT_EQ(started.fault.text.toStdString(), one.fault) << one.value;
        const auto& lookup_cab = child<LookupBox>(started.menu, u"lookup_cab");
        EXPECT_EQ(lookup_cab.text().toStdString(), one.branch) << one.value;
        EXPECT_NE(lookup_cab.isEnabled(), one.limited) << one.value;
        EXPECT_EQ(started.rowsAfterSearch(), one.employees) << one.value;
    }
    company.database.runApp(u"drop table global_setting"_s);
    Started broken(company, u"3"_s);
    EXPECT_NE(broken.fault.text, QString());
    EXPECT_EQ(broken.rowsAfterSearch(), 3) << "a later step failed";
}

TEST(CriteriaSearch, FindsUpToTwoHundredTickedEmployees) {
    SmallCompany company;
    company.database.run(u"delete from emp where emp_id_auto<>-1;\n"
                         "insert into emp(emp_id_auto, pin, dept_id_auto, emp_status) "
                         "select seq, seq, 1, 0 from seq_1_to_210"_s);
    Started started(company, {});
    auto& filter = child<base::FilterBlock>(started.menu, u"filter");
    const int criteria = filter.addItem(u"Kriteria"_s, nullptr);
    filter.select(base::FilterBlock::Pin);
    Q_EMIT filter.valueChosen();
    filter.select(criteria);
    const auto& clb_emp = child<QListWidget>(started.menu, u"clb_emp");
    ASSERT_EQ(clb_emp.count(), 210);
    for (int i = 0; i < 200; ++i)
        clb_emp.item(i)->setCheckState(Qt::Checked);
    EXPECT_EQ(started.rowsAfterSearch(), 200);
    clb_emp.item(200)->setCheckState(Qt::Checked);
    const Message told = messageDuring([&] { EXPECT_EQ(started.rowsAfterSearch(), 0); });
    EXPECT_EQ(told.id, u"message_id[51]"_s);
    EXPECT_EQ(told.text, u"Data kriteria maksimal berisi 200 karyawan."_s);
}

} // namespace
