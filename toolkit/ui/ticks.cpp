#include "toolkit/ui/ticks.h"

#include "toolkit/ui/handler.h"

#include <QAbstractButton>

void bindTickButtons(QWidget& screen, const TickButtons& buttons, const std::function<void(TickWish)>& tick) {
    const auto bind = [&](QAbstractButton* button, TickWish wish) {
        onEvent(button, &QAbstractButton::clicked, &screen, [tick, wish] { tick(wish); });
    };
    bind(buttons.all, TickWish::All);
    bind(buttons.none, TickWish::None);
    bind(buttons.invert, TickWish::Invert);
}
