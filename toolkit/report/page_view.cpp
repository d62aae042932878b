#include "toolkit/report/page_view.h"

#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace report {

namespace {

constexpr double mmPerInch = 25.4;
const QColor desk(0x8a, 0x94, 0x9e);
const QColor shadow(0x5c, 0x66, 0x70);
constexpr int shadowPixels = 3;

} // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAutoFillBackground(false);
}

void PageView::setDocument(Document document) {
    m_document = std::move(document);
    m_current = 1;
    relayout();
    goToPage(1);
}

void PageView::setMode(Mode mode) {
    const int page = m_current;
    m_mode = mode;
    relayout();
    goToPage(page);
}

void PageView::setZoom(Zoom zoom, int percent) {
    const int page = m_current;
    m_zoom = zoom;
    m_percent = percent;
    relayout();
    goToPage(page);
}

double PageView::pixelsPerMm() const {
    const QSize room =
        maximumViewportSize() - QSize(2 * gapPixels + verticalScrollBar()->sizeHint().width(), 2 * gapPixels);
    const double width = std::max(1, room.width()) / m_document.paper.width;
    if (m_zoom == Zoom::FitWidth)
        return width;
    if (m_zoom == Zoom::FitPage)
        return std::min(width, std::max(1, room.height()) / m_document.paper.height);
    return logicalDpiX() / mmPerInch * m_percent / 100.0;
}

QSizeF PageView::pageSize() const {
    return QSizeF(m_document.paper.width, m_document.paper.height) * pixelsPerMm();
}

QRectF PageView::pageRect(int number) const {
    const QSizeF size = pageSize();
    const int row = m_mode == Mode::Continuous ? number - 1 : 0;
    const double left = std::max(double(gapPixels), (viewport()->width() - size.width()) / 2);
    return {{left - horizontalScrollBar()->value(), gapPixels + row * pageStep() - verticalScrollBar()->value()}, size};
}

void PageView::goToPage(int number) {
    const int page = std::clamp(number, 1, std::max(1, pageCount()));
    setCurrent(page);
    verticalScrollBar()->setValue(m_mode == Mode::Continuous ? int(std::ceil((page - 1) * pageStep())) : 0);
    setCurrent(page); // the last pages cannot come to the top, and are meant all the same
    viewport()->update();
}

void PageView::setCurrent(int number) {
    if (m_current == number)
        return;
    m_current = number;
    Q_EMIT currentPageChanged(number);
}

void PageView::stepForward() {
    if (verticalScrollBar()->value() < verticalScrollBar()->maximum())
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    else
        goToPage(m_current + 1);
}

void PageView::stepBack() {
    if (verticalScrollBar()->value() > 0) {
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    } else if (m_current > 1) {
        goToPage(m_current - 1);
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    }
}

void PageView::updateScrollBars() {
    const QSizeF page = pageSize();
    const int rows = m_mode == Mode::Continuous ? std::max(1, pageCount()) : 1;
    const auto span = [](QScrollBar& bar, double content, int room) {
        bar.setRange(0, std::max(0, int(std::ceil(content)) - room));
        bar.setPageStep(room);
        bar.setSingleStep(std::max(1, room / 12));
    };
    span(*verticalScrollBar(), rows * pageStep() + gapPixels, viewport()->height());
    span(*horizontalScrollBar(), page.width() + 2 * gapPixels, viewport()->width());
}

void PageView::relayout() {
    updateScrollBars();
    viewport()->update();
}

void PageView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const int page = m_current;
    relayout();
    goToPage(page);
}

void PageView::scrollContentsBy(int dx, int dy) {
    Q_UNUSED(dx)
    if (dy != 0 && m_mode == Mode::Continuous && pageCount() > 0) {
        const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
        setCurrent(std::clamp(int((middle - gapPixels) / pageStep()) + 1, 1, pageCount()));
    }
    viewport()->update();
}

void PageView::wheelEvent(QWheelEvent* event) {
    const bool down = event->angleDelta().y() < 0;
    const QScrollBar& bar = *verticalScrollBar();
    if (m_mode == Mode::Single && down && bar.value() == bar.maximum())
        goToPage(m_current + 1);
    else if (m_mode == Mode::Single && event->angleDelta().y() > 0 && bar.value() == 0)
        stepBack();
    else
        QAbstractScrollArea::wheelEvent(event);
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), desk);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    if (m_mode == Mode::Single) {
        drawPage(painter, m_current);
        return;
    }
    const int first = std::max(1, int((verticalScrollBar()->value() - gapPixels) / pageStep()) + 1);
    for (int number = first; number <= pageCount() && pageRect(number).top() < event->rect().bottom(); ++number)
        drawPage(painter, number);
}

void PageView::drawPage(QPainter& painter, int number) {
    if (number > pageCount())
        return;
    const QRectF sheet = pageRect(number);
    painter.fillRect(sheet.translated(shadowPixels, shadowPixels), shadow);
    painter.fillRect(sheet, Qt::white);
    painter.save();
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(pixelsPerMm() / dotsPerMm, pixelsPerMm() / dotsPerMm);
    m_painter.draw(painter, m_document.pages[size_t(number) - 1]);
    painter.restore();
}

} // namespace report
