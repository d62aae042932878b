// The file as another program reads it.
#include "tests/report/paper.h"
#include "toolkit/report/output.h"
#include "toolkit/report/report.h"

#include <QFile>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using report::amount;
using report::Band;
using report::field;

namespace {

/// The place of the one such word in the file, in millimetres.
QRectF placeOf(const QString& word, const QString& path) {
    const QString box = uR"--(xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">)--"_s;
    const QRegularExpression pattern(box + QRegularExpression::escape(word) + u'<');
    auto matches = pattern.globalMatch(outputOf(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s}));
    if (!matches.hasNext())
        return {};
    const auto match = matches.next();
    EXPECT_FALSE(matches.hasNext()) << word.toStdString();
    const auto mm = [&match](int i) { return match.captured(i).toDouble() / 72 * 25.4; };
    return {QPointF(mm(1), mm(2)), QPointF(mm(3), mm(4))};
}

QString textOf(const QString& path) {
    return outputOf(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s}).simplified();
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
        table({u"nama"_s, u"gaji"_s}, {{u"Nur'aini <é> binti Kusumawardhani"_s, u"1234567"_s}, {u"Budi"_s, u"950"_s}});
    report::Document document;
};

} // namespace

TEST(Pdf, HoldsTheTextsWhereTheyWereMeasuredOnPagesOfThePaper) {
    const Written file;
    EXPECT_EQ(textOf(file.path), u"Nur'aini <é> binti 1.234.567 Kusumawardhani Budi 950"_s);
    const QString info = outputOf(u"pdfinfo"_s, {file.path}).simplified();
    for (const QString& fact : {u"Title: Daftar gaji"_s, u"Pages: 2"_s, u"Page size: 612 x 936 pts"_s})
        EXPECT_TRUE(info.contains(fact)) << info.toStdString();
    const double firstLine = placeOf(u"1.234.567"_s, file.path).top();
    EXPECT_NEAR(placeOf(u"Kusumawardhani"_s, file.path).top(), firstLine + report::lineMm, 0.1);
    const QRectF budi = placeOf(u"Budi"_s, file.path);
    EXPECT_NEAR(budi.left(), 7.62 + 10, 0.1);
    EXPECT_NEAR(budi.width(), report::TypeSetter().width(u"Budi"_s, {}), 0.1);
    for (const QString& number : {u"1.234.567"_s, u"950"_s})
        EXPECT_NEAR(placeOf(number, file.path).right(), 7.62 + 80, 0.1) << number.toStdString();
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
    EXPECT_EQ(textOf(path), u"Budi 950"_s);
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {path}).contains(u"612 x 936 pts"_s));
    EXPECT_NEAR(placeOf(u"950"_s, path).right(), 7.62 + 80, 0.2);
}
