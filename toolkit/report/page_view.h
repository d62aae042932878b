#pragma once

#include "toolkit/report/output.h"

#include <QAbstractScrollArea>

namespace report {

/// Shows the pages of a document on the screen: one at a time, or all of them below each other. Only what is visible
/// is drawn, so that long documents open as fast as short ones.
class PageView final : public QAbstractScrollArea {
    Q_OBJECT

public:
    enum class Mode { Single, Continuous };
    enum class Zoom { FitWidth, FitPage, Percent };

    explicit PageView(QWidget* parent = nullptr);

    void setDocument(Document document);
    [[nodiscard]] const Document& document() const { return m_document; }

    void setMode(Mode mode);
    /// percent counts for Zoom::Percent only; 100 is the size on paper.
    void setZoom(Zoom zoom, int percent = 100);

    [[nodiscard]] int pageCount() const { return int(m_document.pages.size()); }
    /// Counted from 1.
    [[nodiscard]] int currentPage() const { return m_current; }
    /// Brings the page's upper edge to the top; a number beyond either end means the page there.
    void goToPage(int number);
    /// One screen onwards or back, from a page's end to the next page.
    void stepForward();
    void stepBack();

Q_SIGNALS:
    void currentPageChanged(int number);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] double pixelsPerMm() const;
    [[nodiscard]] QSizeF pageSize() const;
    [[nodiscard]] double pageStep() const { return pageSize().height() + gapPixels; }
    /// Place of the page in the viewport.
    [[nodiscard]] QRectF pageRect(int number) const;
    void setCurrent(int number);
    void updateScrollBars();
    void relayout();
    void drawPage(QPainter& painter, int number);

    static constexpr int gapPixels = 12;

    Document m_document;
    PagePainter m_painter;
    Mode m_mode = Mode::Continuous;
    Zoom m_zoom = Zoom::FitWidth;
    int m_percent = 100;
    int m_current = 1;
};

} // namespace report
