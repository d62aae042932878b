#pragma once

#include "toolkit/ui/grid_column.h"

#include <QHeaderView>

#include <functional>

/// The headings of a grid: one line of captions, and above it one of bands where the grid has bands.
class BandHeader final : public QHeaderView {
    Q_OBJECT

public:
    /// Gives the band over a column, null for none.
    using BandOf = std::function<const GridBand*(int column)>;

    explicit BandHeader(QWidget* parent);

    void setBands(BandOf bandOf);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int column) const override;

private:
    [[nodiscard]] bool hasBands() const { return bool(m_bandOf); }
    /// Where the band over the column lies, in view coordinates, across its visible columns.
    [[nodiscard]] QRect bandRect(const QRect& section, int column, const GridBand* band) const;

    BandOf m_bandOf;
};
