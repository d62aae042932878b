#pragma once

#include "toolkit/data/data_set.h"
#include "toolkit/report/look.h"
#include "toolkit/report/type_setter.h"

#include <QColor>

#include <functional>
#include <vector>

namespace report {

/// What a hook may still change of an item or a frame at the moment it is printed.
struct Printing {
    QString text{};
    bool visible = true;
    bool underline = false;
    QColor fill{};
};
using Hook = std::function<void(Printing&)>;

/// Where an item stands in its band, in millimetres from the band's upper left corner.
struct Place {
    double x = 0;
    double width = 0;
    double y = 0;
};

/// One text of a band. The text is asked for each time the band is printed, with the data sets on their records.
struct Item {
    Place place{};
    std::function<QString()> text{};
    Look look{};
    Hook onPrint{};
};

/// A line from side to side at an edge of its band, or from top to bottom at its left end; it follows a band that
/// grows.
struct RuledLine {
    enum class Edge { Top, Bottom, Left };

    Edge edge = Edge::Bottom;
    double x = 0;
    double width = 0;
};

/// A strip of paper across the page: it is never torn, and grows by whole lines where a text needs more of them.
struct Band {
    QString name{};
    double height = lineMm; ///< millimetres; none: nothing is printed and the hooks still run
    std::vector<Item> items{};
    std::vector<RuledLine> rules{};
};

[[nodiscard]] inline Band noBand() {
    return {.height = 0};
}

[[nodiscard]] Item label(Place place, const QString& text, Look look = {});

/// The field's text, of the record that the set stands on. The set must outlive the report.
[[nodiscard]] Item field(Place place, const data::DataSet& set, const QString& name, Look look = {});

inline constexpr Look atTheRight{.align = Align::Right, .fit = Fit::Line};

/// A number in the picture "#,##0": the field's, or any.
[[nodiscard]] Item amount(Place place, const data::DataSet& set, const QString& name, Look look = atTheRight);
[[nodiscard]] Item amount(Place place, std::function<double()> value, Look look = atTheRight);

/// Of all records that show up; NULL counts as 0.
[[nodiscard]] double sumOf(const data::DataSet& set, const QString& field);
/// Of the first `records` ones.
[[nodiscard]] double sumOf(const data::DataSet& set, const QString& field, int records);

} // namespace report
