#pragma once

#include "toolkit/fault/fault.h"
#include "toolkit/report/document.h"
#include "toolkit/report/type_setter.h"

#include <QPainter>

class QPrinter;

namespace report {

/// A file that cannot be written, or a printer that does not take the pages.
class OutputFault final : public fault::Fault {
public:
    using fault::Fault::Fault;
};

/// Draws pages. The painter's units are dots (dotsPerMm) from the paper's upper left corner.
class PagePainter final {
public:
    void draw(QPainter& painter, const Page& page);

private:
    void drawText(QPainter& painter, const Mark& mark);

    TypeSetter m_type;
};

/// Replaces the file only when all of it is written. Throws OutputFault.
void savePdf(const Document& document, const QString& path);

/// Gives the printer the document's paper and name.
void preparePrinter(QPrinter& printer, const Document& document);

/// first, last: page numbers from 1. Throws OutputFault.
void printPages(const Document& document, QPrinter& printer, int first, int last);

} // namespace report
