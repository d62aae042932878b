#include "frame/emp_check_list.h"
#include "tests/frame/fixture.h"

#include <QLabel>
#include <QListWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Criteria, NameTheTickedEmployeesInTheOrderOfTheirPins) {
    SmallCompany company;
    EmpCheckList list;
    const auto filter = [&] { return list.BuildCriteriaFilter(company.services.messages).toStdString(); };
    list.FillEmpCheckList(company.services.session);
    auto& employees = child<QListWidget>(list, u"clb_emp");
    EXPECT_EQ(employees.count(), 6);
    EXPECT_EQ(employees.item(0)->text(), u"[1] Ani Putri"_s);
    EXPECT_EQ(employees.item(1)->text(), u"[A 2] Anisa "_s);
    EXPECT_EQ(filter(), " and emp_id_auto=-1 ");
    employees.item(4)->setCheckState(Qt::Checked);
    employees.item(1)->setCheckState(Qt::Checked);
    EXPECT_EQ(child<QLabel>(list, u"lbl_jml").text(), u"2"_s);
    EXPECT_EQ(filter(), " and emp_id_auto IN (2, 5) ");
    list.FillEmpCheckList(company.services.session);
    EXPECT_EQ(child<QLabel>(list, u"lbl_jml").text(), u"0"_s);
}

TEST(Criteria, EmptyListFindsNobodyAndSaysSo) {
    SmallCompany company;
    EmpCheckList list;
    const Message told =
        messageDuring([&] { EXPECT_EQ(list.BuildCriteriaFilter(company.services.messages), u" and emp_id_auto=-1 "); });
    EXPECT_EQ(told.id, u"message_id[52]"_s);
    EXPECT_EQ(told.text, u"Data kriteria kosong"_s);
}

} // namespace
