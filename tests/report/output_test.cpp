// The file as another program reads it.
#include "tests/report/paper.h"
#include "tests/report/tool.h"
#include "toolkit/report/output.h"
#include "toolkit/report/report.h"

#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using report::amount;
using report::Band;
using report::field;

namespace {

struct Word {
    double left, top, right, bottom; ///< millimetres
};

/// Every place of the word in the file.
std::vector<Word> findWord(const QString& path, const QString& word) {
    const QString boxes = outputOf(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s});
    const QString box = uR"--(xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">)--"_s;
    const QRegularExpression pattern(box + QRegularExpression::escape(word) + u'<');
    std::vector<Word> found;
    for (const auto& match : pattern.globalMatch(boxes)) {
        const auto mm = [&match](int i) { return match.captured(i).toDouble() / 72 * 25.4; };
        found.push_back({mm(1), mm(2), mm(3), mm(4)});
    }
    return found;
}

struct Written {
    Written() {
        document =
            report::compose({.title = u"Daftar gaji"_s,
                             .master = rows.get(),
                             .section = {.parts = {Band{.items = {field({.x = 10, .width = 40}, *rows, u"nama"_s),
                                                                  amount({.x = 50, .width = 30}, *rows, u"gaji"_s)}}},
                                         .start = report::Section::Start::NewPage}});
        savePdf(document, path);
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"daftar.pdf"_s);
    std::unique_ptr<data::MemTable> rows =
        table({u"nama"_s, u"gaji"_s}, {{u"Nur'aini <é>"_s, u"1234567"_s}, {u"Budi"_s, u"950"_s}});
    report::Document document;
};

} // namespace

TEST(Pdf, HoldsTheTextsOnPagesOfThePaper) {
    const Written file;
    EXPECT_EQ(outputOf(u"pdftotext"_s, {u"-layout"_s, file.path, u"-"_s}).simplified(),
              u"Nur'aini <é> 1.234.567 Budi 950"_s);
    const QString info = outputOf(u"pdfinfo"_s, {file.path});
    EXPECT_TRUE(info.contains(QRegularExpression(u"Title: +Daftar gaji"_s))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression(u"Pages: +2"_s))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression(u"Page size: +612 x 936 pts"_s))) << info.toStdString();
}

TEST(Pdf, TextsStandAndRunAsTheyWereMeasured) {
    const Written file;
    report::TypeSetter type;
    const std::vector<Word> budi = findWord(file.path, u"Budi"_s);
    ASSERT_EQ(budi.size(), 1u);
    EXPECT_NEAR(budi[0].left, 7.62 + 10, 0.1);
    EXPECT_NEAR(budi[0].right - budi[0].left, type.width(u"Budi"_s, {}), 0.1);
    for (const QString& number : {u"1.234.567"_s, u"950"_s}) {
        const std::vector<Word> words = findWord(file.path, number);
        ASSERT_EQ(words.size(), 1u);
        EXPECT_NEAR(words[0].right, 7.62 + 80, 0.1) << number.toStdString();
    }
}

TEST(Pdf, WhatCannotBeWrittenIsTold) {
    const Written file;
    EXPECT_THROW(savePdf(file.document, file.folder.filePath(u"missing/daftar.pdf"_s)), report::OutputFault);
}

TEST(Printer, TakesThePagesAskedForAtItsOwnResolution) {
    const Written file;
    const QString path = file.folder.filePath(u"cetak.pdf"_s);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setResolution(300);
    preparePrinter(printer, file.document);
    printPages(file.document, printer, 2, 2);
    EXPECT_EQ(outputOf(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s}).simplified(), u"Budi 950"_s);
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {path}).contains(u"612 x 936 pts"_s));
    const std::vector<Word> words = findWord(path, u"950"_s);
    ASSERT_EQ(words.size(), 1u);
    EXPECT_NEAR(words[0].right, 7.62 + 80, 0.2);
}

TEST(Painter, FillsFramesAndRulesLieUnderTheTexts) {
    report::Document document{.pages = {{}}};
    document.pages[0].marks = {{.kind = report::Mark::Kind::Frame, .box = {10, 10, 30, 20}, .fill = {0xee, 0xee, 0xee}},
                               {.kind = report::Mark::Kind::Rule, .box = {10, 20, 30, 0}},
                               {.box = {12, 12, 20, report::lineMm}, .text = u"MMMM"_s, .look = {.bold = true}}};
    constexpr int pixelsPerMm = 10;
    QImage picture(500, 400, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(pixelsPerMm / report::dotsPerMm, pixelsPerMm / report::dotsPerMm);
    report::PagePainter().draw(painter, document.pages[0]);
    painter.end();
    const auto color = [&](double x, double y) {
        return picture.pixelColor(int(x * pixelsPerMm), int(y * pixelsPerMm)).name();
    };
    EXPECT_EQ(color(5, 5), u"#ffffff"_s);
    EXPECT_EQ(color(35, 25), u"#eeeeee"_s);
    EXPECT_EQ(color(35, 20), u"#707070"_s);
    EXPECT_EQ(color(10, 25), u"#707070"_s);
    int ink = 0;
    for (int x = 120; x < 200; ++x)
        for (int y = 120; y < 170; ++y)
            ink += picture.pixelColor(x, y) == Qt::black;
    EXPECT_GT(ink, 200);
}
