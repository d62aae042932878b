#pragma once

#include "toolkit/report/look.h"

#include <QColor>
#include <QRectF>
#include <QStringList>

#include <vector>

namespace report {

/// A sheet of paper, in millimetres; the margin is the same on every side.
struct Paper {
    double width = 215.9;
    double height = 330.2;
    double margin = 7.62;
};

/// One thing at its place on a page.
struct Mark {
    enum class Kind { Text, Rule, Frame };

    Kind kind = Kind::Text;
    QString band{}; ///< the band that printed it
    QRectF box{};   ///< millimetres from the paper's upper left corner; a rule is a box without width or height
    QString text{}; ///< lines parted by '\n'
    Look look{};
    QColor fill{}; ///< none where invalid
};

struct Page {
    std::vector<Mark> marks{}; ///< in the order of drawing: what lies below comes first
};

/// A finished report: nothing in it depends on the data it came from any more.
struct Document {
    QString title{};
    Paper paper{};
    std::vector<Page> pages{};
};

/// The page as text, one line for each text and frame, in reading order: `band x y "text"`, millimetres with one
/// decimal, then bold, underline, box, fill #rrggbb where they apply. Quotes, backslashes and line ends are escaped.
[[nodiscard]] QStringList textLines(const Page& page);

/// `page N of M WxH mm` and the lines of each page.
[[nodiscard]] QStringList textLines(const Document& document);

} // namespace report
