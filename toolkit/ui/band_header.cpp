#include "toolkit/ui/band_header.h"

#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionHeader>

#include <utility>

BandHeader::BandHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setDefaultAlignment(Qt::AlignCenter);
    setHighlightSections(false);
    setSectionsClickable(false);
    // A moved edge changes how wide the band above is, scrolling where its caption stands.
    connect(this, &QHeaderView::sectionResized, viewport(), qOverload<>(&QWidget::update));
    if (auto* area = qobject_cast<QAbstractScrollArea*>(parent))
        connect(area->horizontalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
}

void BandHeader::setBands(BandOf bandOf) {
    m_bandOf = std::move(bandOf);
    updateGeometry();
    viewport()->update();
}

QSize BandHeader::sizeHint() const {
    const QSize one = QHeaderView::sizeHint();
    return hasBands() ? QSize(one.width(), 2 * one.height()) : one;
}

QRect BandHeader::bandRect(const QRect& section, int column, const GridBand* band) const {
    const auto belongs = [&](int visual) {
        return visual >= 0 && visual < count() && m_bandOf(logicalIndex(visual)) == band;
    };
    int from = visualIndex(column);
    int to = from;
    while (belongs(from - 1))
        --from;
    while (belongs(to + 1))
        ++to;
    int left = section.left();
    for (int visual = from; visual < visualIndex(column); ++visual)
        left -= sectionSize(logicalIndex(visual));
    int width = 0;
    for (int visual = from; visual <= to; ++visual)
        width += sectionSize(logicalIndex(visual));
    return {left, section.top(), width, section.height() / 2};
}

void BandHeader::paintSection(QPainter* painter, const QRect& rect, int column) const {
    if (!hasBands()) {
        QHeaderView::paintSection(painter, rect, column);
        return;
    }
    const GridBand* band = m_bandOf(column);
    const QRect upper(rect.left(), rect.top(), rect.width(), rect.height() / 2);
    QHeaderView::paintSection(painter, band ? rect.adjusted(0, upper.height(), 0, 0) : rect, column);
    if (!band)
        return;
    const QRect whole = bandRect(rect, column, band);
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = whole;
    option.section = column;
    option.position = QStyleOptionHeader::Middle;
    painter->save();
    painter->setClipRect(upper);
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    // The caption stands over the part that can be seen.
    style()->drawItemText(painter, whole & viewport()->rect(), Qt::AlignCenter, palette(), isEnabled(), band->caption(),
                          QPalette::ButtonText);
    painter->restore();
}
