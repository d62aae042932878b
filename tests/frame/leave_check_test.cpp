#include "base/leave_check.h"
#include "base/look_up.h"
#include "schema/settings_keys.h"
#include "tests/frame/fixture.h"
#include "toolkit/text/sql_text.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const base::MessageText taken{u"frm_uji"_s, 4, u"Cabang sudah ada."_s};

QString branchesCalled(const QString& text) {
    return text.isEmpty() ? QString() : u"select count(*) as jml from cabang where cab_name="_s + quotedSqlText(text);
}

TEST(LeaveCheck, RefusesATakenTextWithTheClickThatLeftItAndAsksNothingOfALoadedOne) {
    SmallCompany company;
    QDialog screen;
    auto* layout = new QVBoxLayout(&screen);
    auto* edit = new QLineEdit;
    auto* save = new QPushButton;
    layout->addWidget(edit);
    layout->addWidget(save);
    base::LeaveCheck check(company.services, *edit, branchesCalled, taken);
    check.setLoaded(u"Pusat"_s);
    int saves = 0;
    QObject::connect(save, &QPushButton::clicked, [&saves] { ++saves; });
    screen.show();
    const auto leaveWith = [&](const QString& text) {
        QApplication::setActiveWindow(&screen);
        edit->setFocus();
        edit->setText(text);
        const Message told = messageDuring([&] { QTest::mouseClick(save, Qt::LeftButton); });
        QCoreApplication::processEvents();
        return u"%1 %2 %3"_s.arg(told.text).arg(saves).arg(screen.focusWidget() == edit).toStdString();
    };
    EXPECT_EQ(leaveWith(u"Cabang D'Or"_s), "Cabang sudah ada. 0 1");
    EXPECT_EQ(leaveWith(u"Pusat"_s), " 1 0");
    EXPECT_EQ(leaveWith(u"Baru"_s), " 2 0");
    EXPECT_EQ(leaveWith({}), " 3 0");
    edit->setFocus();
    edit->setText(u"Cabang D'Or"_s);
    EXPECT_EQ(messageDuring([&] { screen.close(); }).text, QString()) << "a screen that closes leaves no field";
}

TEST(LookUp, NumbersAndSettingsThatAreNotThereReadAsNone) {
    SmallCompany company;
    db::Connection& main = company.services.session.ADOConn;
    EXPECT_EQ(base::nextKey(main, u"cabang", u"cab_id_auto"), 4);
    EXPECT_EQ(base::nextKey(main, u"z_pay_com", u"com_id"), 1);
    EXPECT_EQ(base::countOf(main, u"select cab_id_auto from cabang where cab_id_auto=2"_s), 0);
    EXPECT_EQ(base::readSetting(company.services.session.ADOConn_lang, schema::defaultLang), u"indonesia"_s);
    EXPECT_EQ(base::readSetting(company.services.session.ADOConn_lang, schema::changeLang), QString());
}

} // namespace
