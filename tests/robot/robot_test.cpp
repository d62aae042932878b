// What the robot does to controls that no screen has yet.
#include "tools/robot/robot.h"

#include <QDialog>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <sstream>

using namespace Qt::StringLiterals;

TEST(Robot, TurnsPagesAndStepsNumbersThroughTheirHandlers) {
    QDialog form;
    form.setObjectName(u"frm_x"_s);
    QTabWidget pages;
    pages.setObjectName(u"pages"_s);
    QSpinBox number;
    number.setObjectName(u"number"_s);
    number.setRange(1, 12);
    number.setSingleStep(2);
    pages.addTab(new QWidget, u"Pertama"_s);
    pages.addTab(&number, u"&Kedua"_s);
    (new QVBoxLayout(&form))->addWidget(&pages);
    std::string told;
    QObject::connect(pages.tabBar(), &QTabBar::tabBarClicked,
                     [&told](int page) { told += "page " + std::to_string(page); });
    QObject::connect(&number, &QSpinBox::valueChanged, [&told](int value) { told += ' ' + std::to_string(value); });
    form.show();
    std::istringstream script("choose pages Kedua\nset number 7\nset number 5\nset number 8\n");
    EXPECT_EXIT(Robot({}, script).run(), testing::ExitedWithCode(2), "line 4: number does not reach 8 by its arrows");
    std::istringstream good("choose pages Kedua\nset number 7\nset number 5\n");
    EXPECT_EQ(Robot({}, good).run(), 0);
    EXPECT_EQ(told, "page 1 3 5 7 5");
}
