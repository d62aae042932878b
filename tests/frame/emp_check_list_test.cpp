#include "frame/window/emp_check_list.h"
#include "tests/frame/fixture.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class Criteria : public testing::Test {
protected:
    void makeEmployees(int count) {
        company.database.run(QStringLiteral("delete from emp where emp_id_auto<>-1"));
        company.database.run(QStringLiteral("insert into emp(emp_id_auto, pin, first_name) "
                                            "select seq, seq, 'Nama' from seq_1_to_%1")
                                 .arg(count));
        list.FillEmpCheckList(company.services.session);
    }

    void tick(int count) {
        auto& employees = child<QListWidget>(list, u"clb_emp");
        for (int i = 0; i < employees.count(); ++i)
            employees.item(i)->setCheckState(i < count ? Qt::Checked : Qt::Unchecked);
    }

    /// The fragment, and the message that was shown beside it.
    std::string filter() {
        QString shown;
        QTimer::singleShot(0, &list, [&] {
            if (auto* window = qobject_cast<MessageWindow*>(QApplication::activeModalWidget())) {
                shown = QStringLiteral("[%1] %2").arg(window->message().id, window->message().text);
                window->press(MessageOk);
            }
        });
        const QString fragment = list.BuildCriteriaFilter(company.services.messages);
        QCoreApplication::processEvents();
        return (fragment + shown).toStdString();
    }

    SmallCompany company;
    EmpCheckList list;
};

TEST_F(Criteria, NamesTheTickedEmployeesInTheOrderOfTheirPins) {
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

TEST_F(Criteria, TwoHundredPassAndOneMoreFindsNobody) {
    makeEmployees(201);
    tick(200);
    EXPECT_EQ(QString::fromStdString(filter()).count(u','), 199);
    tick(201);
    EXPECT_EQ(child<QLabel>(list, u"lbl_jml").text(), QStringLiteral("201"));
    EXPECT_EQ(filter(), " and emp_id_auto=-1 [message_id[51]] Data kriteria maksimal berisi 200 karyawan.");
}

TEST_F(Criteria, EmptyListFindsNobodyAndSaysSo) {
    EXPECT_EQ(filter(), " and emp_id_auto=-1 [message_id[52]] Data kriteria kosong");
}

} // namespace
