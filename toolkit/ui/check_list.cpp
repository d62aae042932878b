#include "toolkit/ui/check_list.h"

#include <QSignalBlocker>

CheckList::CheckList(QWidget* parent) : QListWidget(parent) {
    connect(this, &QListWidget::itemChanged, this, &CheckList::tellTicks);
}

void CheckList::fill(const std::vector<Entry>& entries) {
    {
        const QSignalBlocker filling(this);
        clear();
        for (const auto& [text, key] : entries) {
            auto* item = new QListWidgetItem(text, this);
            item->setData(Qt::UserRole, key);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            item->setCheckState(Qt::Unchecked);
        }
    }
    tellTicks();
}

void CheckList::tickAll(TickWish wish) {
    {
        const QSignalBlocker ticking(this);
        for (int entry = 0; entry < count(); ++entry)
            item(entry)->setCheckState(isWished(wish, isTicked(entry)) ? Qt::Checked : Qt::Unchecked);
    }
    viewport()->update();
    tellTicks();
}

std::vector<int> CheckList::tickedKeys() const {
    std::vector<int> keys;
    for (int entry = 0; entry < count(); ++entry)
        if (isTicked(entry))
            keys.push_back(keyOf(entry));
    return keys;
}
