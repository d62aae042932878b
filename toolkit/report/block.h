#pragma once

#include "toolkit/report/report.h"

namespace report {

/// What one record prints, before it has a page: marks counted from its own upper left corner, and the strips that no
/// end of a page may go through.
struct Block {
    struct Strip {
        double top;
        double bottom;
    };

    std::vector<Mark> marks;
    std::vector<Strip> strips;
    double height = 0;

    /// The lowest place between top and limit that goes through no strip; the limit itself where there is none.
    [[nodiscard]] double cut(double top, double limit) const;
};

/// Fills a block with bands and lists, asking the items for their texts.
class BlockPrinter final {
public:
    /// lines: how many a text may have.
    BlockPrinter(TypeSetter& type, int lines) : m_type(type), m_lines(lines) {}

    /// For the record that the master stands on; lists show what belongs to it.
    [[nodiscard]] Block print(const std::vector<Part>& parts, const data::DataSet& master);
    [[nodiscard]] Block print(const std::vector<Band>& bands);

private:
    struct Printed {
        int lines = 0;
        double summaryTop = 0;
        double bottom = 0;
    };

    [[nodiscard]] double part(const Part& part, double y);
    [[nodiscard]] double band(const Band& band, QPointF at);
    [[nodiscard]] Printed list(const List& list, QPointF at);
    [[nodiscard]] double sideBySide(const SideBySide& lists, double y);
    /// The height that the item needs below the top of its band; none where it does not appear.
    [[nodiscard]] double item(const Item& item, const QString& band, QPointF at);
    void rules(const Band& band, const QRectF& box);

    TypeSetter& m_type;
    const int m_lines;
    const data::DataSet* m_master = nullptr;
    Block m_block;
};

} // namespace report
