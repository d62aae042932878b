#include "toolkit/report/output.h"

#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr double ruleMm = 0.15;
constexpr int dotsPerInch = 1200;

const QColor ink(0, 0, 0);
const QColor lineInk(0x70, 0x70, 0x70);

QPageLayout layoutOf(const Paper& paper) {
    const QPageSize size({paper.width, paper.height}, QPageSize::Millimeter,
                         u"%1 x %2 mm"_s.arg(paper.width).arg(paper.height), QPageSize::ExactMatch);
    return {size, QPageLayout::Portrait, {}};
}

QRectF dots(const QRectF& mm) {
    return {mm.x() * dotsPerMm, mm.y() * dotsPerMm, mm.width() * dotsPerMm, mm.height() * dotsPerMm};
}

} // namespace

void PagePainter::draw(QPainter& painter, const Page& page) {
    for (const Mark& mark : page.marks) {
        const QRectF box = dots(mark.box);
        if (mark.fill.isValid())
            painter.fillRect(box, mark.fill);
        if (mark.kind == Mark::Kind::Text) {
            drawText(painter, mark);
            continue;
        }
        painter.setPen(QPen(lineInk, ruleMm * dotsPerMm));
        if (mark.kind == Mark::Kind::Frame)
            painter.drawRect(box);
        else
            painter.drawLine(box.topLeft(), box.bottomRight());
    }
}

void PagePainter::drawText(QPainter& painter, const Mark& mark) {
    painter.setPen(ink);
    painter.setFont(m_type.font(mark.look));
    double y = mark.box.y() + m_type.baseline(mark.look);
    for (const QString& line : mark.text.split(u'\n')) {
        double x = mark.box.x();
        if (mark.look.align != Align::Left) {
            const double room = mark.box.width() - m_type.width(line, mark.look);
            x += mark.look.align == Align::Right ? room : room / 2;
        }
        painter.drawText(QPointF(x, y) * dotsPerMm, line);
        y += lineMm;
    }
}

void savePdf(const Document& document, const QString& path) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw OutputFault(file.errorString().toStdString());
    {
        QPdfWriter writer(&file);
        writer.setResolution(dotsPerInch);
        writer.setTitle(document.title);
        writer.setPageLayout(layoutOf(document.paper));
        QPainter painter(&writer);
        PagePainter pages;
        for (size_t i = 0; i < document.pages.size(); ++i) {
            if (i > 0)
                writer.newPage();
            pages.draw(painter, document.pages[i]);
        }
    }
    if (!file.commit())
        throw OutputFault(file.errorString().toStdString());
}

void preparePrinter(QPrinter& printer, const Document& document) {
    printer.setDocName(document.title);
    printer.setPageLayout(layoutOf(document.paper));
    printer.setFullPage(true);
}

void printPages(const Document& document, QPrinter& printer, int first, int last) {
    QPainter painter;
    if (!painter.begin(&printer))
        throw OutputFault("the printer does not take the pages");
    const double scale = printer.resolution() / double(dotsPerInch);
    painter.scale(scale, scale);
    PagePainter pages;
    for (int number = first; number <= last; ++number) {
        if (number > first && !printer.newPage())
            throw OutputFault("the printer does not take the pages");
        pages.draw(painter, document.pages[size_t(number) - 1]);
    }
}

} // namespace report
