#include "base/fr_browse_emp.h"
#include "tests/frame/fixture.h"
#include "toolkit/ui/data_grid.h"
#include "toolkit/ui/lookup_box.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Browser : public testing::Test {
protected:
    void open(BrowseMode mode) {
        form = std::make_unique<Tfrm_browse_emp>(
            company.services, mode, [this](const QString& nama) { handedOver << nama; }, nullptr);
        form->show();
        QCoreApplication::processEvents();
    }

    void choose(int index) {
        auto& box = child<QComboBox>(*form, u"cmb_filter");
        box.setCurrentIndex(index);
        Q_EMIT box.activated(index);
    }

    /// Searches and gives the PINs found.
    std::string search(int index, const char* text) {
        choose(index);
        child<QLineEdit>(*form, u"edt_filter").setText(QString::fromUtf8(text));
        return search();
    }

    std::string search() {
        child<QPushButton>(*form, u"btn_cari").click();
        return pins();
    }

    std::string pins() {
        const auto& grid = child<DataGrid>(*form, u"dbg_d");
        QStringList found;
        for (int row = 0; row < grid.rows().rowCount(); ++row)
            found << grid.rows().textAt(row, grid.columnOf(u"pin"));
        found.sort();
        return found.join(u',').toStdString();
    }

    SmallCompany company;
    std::unique_ptr<Tfrm_browse_emp> form;
    QStringList handedOver;
};

TEST_F(Browser, FindsExactNumbersAndBeginningsOfNames) {
    open(BrowseMode::Everybody);
    EXPECT_EQ(pins(), "1,3,4,6,A 2");
    EXPECT_EQ(search(1, "A 2"), "A 2");
    EXPECT_EQ(search(1, "A"), "");
    EXPECT_FALSE(child<DataGrid>(*form, u"dbg_d").isEnabled());
    EXPECT_EQ(search(2, "N3"), "3");
    EXPECT_EQ(search(3, "Ani"), "1,A 2");
    EXPECT_EQ(search(3, "Ma'r"), "3");
    EXPECT_EQ(search(3, "%ani"), "1,4,A 2");
    EXPECT_EQ(search(3, "' or 1=1 -- "), "");
}

TEST_F(Browser, LimitedSessionSeesItsBranchOnly) {
    company.services.session.session_cab_id = base::Branch::one(3);
    open(BrowseMode::Everybody);
    EXPECT_EQ(pins(), "3,4,6");
    choose(4);
    EXPECT_EQ(search(), "3,4,6");
    EXPECT_EQ(search(1, "1"), "");
    company.services.session.session_cab_id = base::Branch();
    open(BrowseMode::Everybody);
    EXPECT_EQ(pins(), "");
    EXPECT_EQ(search(1, "3"), "");
}

TEST_F(Browser, PaymentsGoOnlyToOpenLoans) {
    company.database.run(u"insert into zx_kredit_m(id_kredit, emp_id_auto, status_lunas) values(1, 1, 0),"
                         "(2, 1, -1), (3, 3, -1), (4, 5, 0)"_s);
    open(BrowseMode::WithOpenLoan);
    EXPECT_EQ(pins(), "1");
    EXPECT_EQ(search(1, "3"), "");
}

TEST_F(Browser, HandsTheNameOfTheCurrentRowOver) {
    open(BrowseMode::Everybody);
    EXPECT_EQ(search(1, "3"), "3");
    child<QPushButton>(*form, u"btn_ok").click();
    EXPECT_EQ(handedOver, QStringList(u"Ma'ruf Ali"_s));
    EXPECT_FALSE(form->isVisible());
    open(BrowseMode::Everybody);
    EXPECT_EQ(search(1, "nobody"), "");
    child<QPushButton>(*form, u"btn_ok").click();
    EXPECT_EQ(handedOver.size(), 1);
    EXPECT_FALSE(form->isVisible());
}

} // namespace
