#include "frame/window/emp_check_list.h"
#include "tests/frame/fixture.h"

#include <QLabel>
#include <QListWidget>

#include <gtest/gtest.h>

namespace {

TEST(Criteria, NameTheTickedEmployeesInTheOrderOfTheirPins) {
    SmallCompany company;
    EmpCheckList list;
    const auto filter = [&] { return list.BuildCriteriaFilter(company.services.messages).toStdString(); };
    list.FillEmpCheckList(company.services.session);
    auto& employees = child<QListWidget>(list, u"clb_emp");
    EXPECT_EQ(employees.count(), 6);
    EXPECT_EQ(employees.item(0)->text(), QStringLiteral("[1] Ani Putri"));
    EXPECT_EQ(employees.item(1)->text(), QStringLiteral("[A 2] Anisa "));
    EXPECT_EQ(filter(), " and emp_id_auto=-1 ");
    employees.item(4)->setCheckState(Qt::Checked);
    employees.item(1)->setCheckState(Qt::Checked);
    EXPECT_EQ(child<QLabel>(list, u"lbl_jml").text(), QStringLiteral("2"));
    EXPECT_EQ(filter(), " and emp_id_auto IN (2, 5) ");
    list.FillEmpCheckList(company.services.session);
    EXPECT_EQ(child<QLabel>(list, u"lbl_jml").text(), QStringLiteral("0"));
}

TEST(Criteria, EmptyListFindsNobodyAndSaysSo) {
    SmallCompany company;
    EmpCheckList list;
    const Message told =
        messageDuring([&] { EXPECT_EQ(list.BuildCriteriaFilter(company.services.messages), u" and emp_id_auto=-1 "); });
    EXPECT_EQ(told.id, QStringLiteral("message_id[52]"));
    EXPECT_EQ(told.text, QStringLiteral("Data kriteria kosong"));
}

} // namespace
