#pragma once

#include <functional>

class QAbstractButton;
class QWidget;

enum class TickWish { All, None, Invert };

/// Whether an entry is to be ticked that is, or is not, ticked now.
[[nodiscard]] inline bool isWished(TickWish wish, bool isTicked) {
    return wish == TickWish::All || (wish == TickWish::Invert && !isTicked);
}

/// The three buttons beside a list with ticks.
struct TickButtons {
    QAbstractButton* all;
    QAbstractButton* none;
    QAbstractButton* invert;
};

/// A click on one of the buttons asks for its wish, guarded as the screen's handlers are.
void bindTickButtons(QWidget& screen, const TickButtons& buttons, const std::function<void(TickWish)>& tick);
