#pragma once

#include "toolkit/report/band.h"
#include "toolkit/report/document.h"

#include <optional>
#include <stdexcept>
#include <variant>

namespace report {

/// The records that belong to the one being printed: while the list is printed its set shows only those whose link
/// field holds the same value, and afterwards it still stands on the last of them.
struct List {
    data::DataSet* rows = nullptr;
    QString link;
    Band head = noBand();
    Band line{};
    Band summary = noBand();
};

/// Two lists beside each other; the left one is printed first.
struct SideBySide {
    List left;
    List right;
    double rightX = 0; ///< millimetres from the left edge
    /// Where the next part begins, in millimetres below the top of the left summary, from the numbers of lines; never
    /// above the end of either list.
    std::function<double(int leftLines, int rightLines)> nextPlace{};
};

using Part = std::variant<Band, List, SideBySide>;

/// A box around all that is printed for one record, as high as that is.
struct Frame {
    QString name{};
    double padding = 0; ///< millimetres on every side
    Hook onPrint{};     ///< runs before those of the items inside
};

/// What is printed for each record of the master: kept together on a page, on several only where one does not do.
struct Section {
    std::vector<Part> parts{};
    std::optional<Frame> frame{};
    double gap = 0; ///< millimetres to the next one
    enum class Start { Anywhere, NewPage } start = Start::Anywhere;
};

/// Where the page stands that a header or footer is printed for.
struct PageInfo {
    int number = 1;
    int count = 1;
    int records = 0; ///< of the master, from the first one to the last that begins on the page
};
using PageBands = std::function<std::vector<Band>(const PageInfo&)>;

/// The design of a report over the records of its master. Header and footer have the same height on every page.
struct Report {
    QString title{};
    Paper paper{};
    data::DataSet* master = nullptr;
    PageBands header{};
    PageBands footer{};
    Section section{};
};

/// Header and footer leave no room for a line between them.
class NoRoomFault final : public std::runtime_error {
public:
    NoRoomFault() : std::runtime_error("header and footer fill the page") {}
};

/// Prints the report from the first record to the last; without records it is one page. The sets must be open. The
/// master's cursor stays where it was; linked sets keep the filter of the last record. A text that is longer than a
/// page ends with an ellipsis. Throws NoRoomFault.
[[nodiscard]] Document compose(const Report& report);

} // namespace report
