#include "frame/base/tick_list.h"

namespace frame {

namespace {

constexpr int ticked = -1;

bool isTicked(const data::DataSet& list, int row, int field) {
    return data::integerOf(list.valueAt(row, field)) == ticked;
}

int wishedTick(TickWish wish, bool isTickedNow) {
    switch (wish) {
    case TickWish::All:
        return ticked;
    case TickWish::None:
        return 0;
    case TickWish::Invert:
        break;
    }
    return isTickedNow ? 0 : ticked;
}

} // namespace

void setTicks(data::DataSet& list, TickWish wish, const TickToggled& toggled) {
    const data::ViewsOff off(list);
    const int row = list.row();
    for (list.first(); !list.isEof(); list.next()) {
        const int tick = wishedTick(wish, list.integer(u"pilih") == ticked);
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
    for (list.first(); !list.isEof(); list.next())
        if (list.integer(u"pilih") == ticked)
            action();
    list.goToRow(row);
}

Ticked tickedRows(const data::DataSet& list) {
    Ticked found;
    const int field = list.fieldIndex(u"pilih");
    for (int row = 0; row < list.rowCount(); ++row)
        if (isTicked(list, row, field)) {
            ++found.count;
            found.lastRow = row;
        }
    return found;
}

} // namespace frame
