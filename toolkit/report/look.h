#pragma once

namespace report {

enum class Align { Left, Right, Centre };

/// Wrap: a text that is wider than its place goes on in lines below. Line: it stays on one line whatever its width.
enum class Fit { Wrap, Line };

/// How a text is set.
struct Look {
    double points = 8;
    bool bold = false;
    bool underline = false;
    Align align = Align::Left;
    Fit fit = Fit::Wrap;
};

} // namespace report
