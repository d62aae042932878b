#include "base/tick_list.h"

#include <QScopeGuard>

namespace base {

namespace {

constexpr int ticked = -1;

bool isTicked(const data::DataSet& list) {
    return list.integer(u"pilih") == ticked;
}

} // namespace

void setTicks(data::DataSet& list, TickWish wish, const TickToggled& toggled) {
    const data::ViewsOff off(list);
    const int row = list.row();
    for (list.first(); !list.isEof(); list.next()) {
        const int tick = isWished(wish, isTicked(list)) ? ticked : 0;
        list.edit();
        list.setValue(u"pilih", tick);
        if (toggled)
            toggled(QString::number(tick));
        list.post();
    }
    list.goToRow(row);
}

void forEachTicked(data::DataSet& list, const std::function<void()>& action) {
    const data::ViewsOff off(list);
    const int row = list.row();
    const auto goBack = qScopeGuard([&] { list.goToRow(row); });
    for (list.first(); !list.isEof(); list.next())
        if (isTicked(list))
            action();
}

bool goToOnlyTicked(data::DataSet& list, Messages& messages, QWidget* screen, const MessageText& several) {
    if (list.isEmpty())
        return false;
    int count = 0;
    int row = 0;
    forEachTicked(list, [&] {
        ++count;
        row = list.row();
    });
    if (count > 1)
        messages.inform(screen, several);
    if (count == 1)
        list.goToRow(row);
    return count == 1;
}

} // namespace base
