// The preview as a person at the keyboard uses it.
#include "tests/report/paper.h"
#include "toolkit/report/fr_preview.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Preview : public testing::Test {
protected:
    Preview() {
        report::Document document{.title = u"Slip"_s};
        document.pages.resize(5);
        preview = new Tfrm_preview(document, nullptr);
        preview->resize(900, 700);
        preview->show();
        QApplication::processEvents();
    }
    ~Preview() override { delete preview; }

    template <typename Control>
    [[nodiscard]] Control* control(const QString& name) const {
        return preview->findChild<Control*>(name);
    }
    void press(const QString& button) const { control<QAbstractButton>(button)->click(); }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(pages(), code, modifiers);
    }
    [[nodiscard]] report::PageView* pages() const { return control<report::PageView>(u"pv_halaman"_s); }
    /// The page and their number, then "-" for each way that is closed: to the first, the one before, the next, the
    /// last.
    [[nodiscard]] QString shown() const {
        QString ways;
        for (const QString& button : {u"btn_pertama"_s, u"btn_sebelum"_s, u"btn_berikut"_s, u"btn_terakhir"_s})
            ways += control<QAbstractButton>(button)->isEnabled() ? u'+' : u'-';
        return control<QLineEdit>(u"edt_halaman"_s)->text() + u'/' + control<QLabel>(u"lbl_jumlah"_s)->text() + ways;
    }

    QPointer<Tfrm_preview> preview;
};

} // namespace

TEST_F(Preview, ButtonsAndTypedNumbersGoFromPageToPage) {
    for (const bool continuous : {true, false}) {
        control<QAbstractButton>(u"chb_menerus"_s)->setChecked(continuous);
        QStringList seen{shown()};
        for (const QString& button : {u"btn_berikut"_s, u"btn_terakhir"_s, u"btn_sebelum"_s, u"btn_pertama"_s}) {
            press(button);
            seen << shown();
        }
        QTest::keyClicks(control<QLineEdit>(u"edt_halaman"_s), u"\b3"_s);
        QTest::keyClick(control<QLineEdit>(u"edt_halaman"_s), Qt::Key_Return);
        seen << shown();
        press(u"btn_pertama"_s);
        EXPECT_EQ(seen.join(u' '), u"1/5--++ 2/5++++ 5/5++-- 4/5++++ 1/5--++ 3/5++++"_s) << continuous;
    }
}

TEST_F(Preview, APageThatCannotComeToTheTopIsTheCurrentOneAllTheSame) {
    preview->resize(900, 1500);
    control<QComboBox>(u"cmb_zoom"_s)->setCurrentText(u"50 %"_s);
    press(u"btn_terakhir"_s);
    EXPECT_EQ(shown(), u"5/5++--"_s);
}

TEST_F(Preview, KeysReadOnOverTheEndOfAPageAndBack) {
    control<QAbstractButton>(u"chb_menerus"_s)->setChecked(false);
    int steps = 0;
    for (; pages()->currentPage() == 1 && steps < 10; ++steps)
        key(Qt::Key_PageDown);
    EXPECT_EQ(shown(), u"2/5++++"_s);
    EXPECT_GT(steps, 1) << "a page as wide as the window is read in several steps";
    key(Qt::Key_PageUp);
    EXPECT_EQ(shown(), u"1/5--++"_s);
    EXPECT_GT(pages()->verticalScrollBar()->value(), 0) << "back to where it was left";
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(shown(), u"5/5++--"_s);
    key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(shown(), u"1/5--++"_s);
    key(Qt::Key_Escape);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(preview.isNull());
}

TEST_F(Preview, SavesAsPdfUnderTheNameOfTheReport) {
    const QTemporaryDir folder;
    QString offered;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        offered = QFileInfo(dialog->selectedFiles().constFirst()).fileName();
        dialog->selectFile(folder.filePath(u"mei"_s));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(offered, u"Slip.pdf"_s);
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {folder.filePath(u"mei.pdf"_s)}).contains(QRegularExpression(u"Pages: +5"_s)));
}

TEST_F(Preview, ZoomKeepsThePageAndChangesItsSize) {
    press(u"btn_berikut"_s);
    QList<int> heights;
    for (const char16_t* zoom : {u"Satu halaman", u"100 %", u"200 %"}) {
        control<QComboBox>(u"cmb_zoom"_s)->setCurrentText(QString::fromUtf16(zoom));
        EXPECT_EQ(shown(), u"2/5++++"_s);
        const QScrollBar* bar = pages()->verticalScrollBar();
        heights << (bar->maximum() + bar->pageStep()) / 5;
    }
    EXPECT_LE(heights[0], pages()->viewport()->height());
    const double inch = preview->logicalDpiY();
    EXPECT_NEAR(heights[1], 13 * inch + 15, 3);
    EXPECT_NEAR(heights[2], 26 * inch + 15, 3);
}
