// Screens that go at once, and labels that show whatever stands in the tables.
#include "register/fr_hitung_gaji.h"
#include "run/form/fr_isian_hitung_gaji.h"
#include "tests/frame/fixture.h"
#include "toolkit/ui/data_label.h"
#include "toolkit/ui/plain_text.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Screens, ThatAreClosedBeforeTheyAreActiveLeaveNothingBehind) {
    SmallCompany company;
    {
        Tfrm_isian_hitung_gaji form(company.services, {}, nullptr);
        form.show();
        form.findChild<QLineEdit*>(u"dbe_nama"_s)->setFocus();
        QApplication::setActiveWindow(&form);
    }
    const QPointer<Workspace> workspace = new Tfrm_hitung_gaji(company.services, nullptr);
    workspace->show();
    workspace->close();
    EXPECT_TRUE(messageDuring([] { QApplication::processEvents(); }).text.isEmpty());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(workspace.isNull());
}

TEST(DataLabel, ShowsMarkupAsTextAndALongNameWidensNothing) {
    DataLabel label;
    label.setText(u"<img src=nothing><b>&Cari</b>"_s + QString(1000, u'W'));
    EXPECT_LT(label.minimumSizeHint().width(), 60);
    EXPECT_GT(label.sizeHint().width(), 5000);
    label.resize(300, 30);
    const auto shown = [&label] { return label.grab().toImage(); };
    const QImage first = shown();
    label.setText(u"<i src=nothing><b>&Cari</b>"_s + QString(1000, u'W'));
    EXPECT_NE(shown(), first) << "a tag can be read";
    EXPECT_EQ(plainToolTip(u"<b>&x</b>"_s + QString(41, u'W')).toStdString(),
              "<qt>&lt;b&gt;&amp;x&lt;/b&gt;" + std::string(31, 'W') + "\u200b" + std::string(10, 'W') + "</qt>");
}
