#pragma once

#include "toolkit/ui/ticks.h"

#include <QListWidget>

#include <vector>

/// A list of texts with a tick before each, and a key behind it that nobody sees.
class CheckList final : public QListWidget {
    Q_OBJECT

public:
    struct Entry {
        QString text;
        int key;
    };

    explicit CheckList(QWidget* parent = nullptr);

    /// In place of what the list held; none is ticked.
    void fill(const std::vector<Entry>& entries);
    void tickAll(TickWish wish);

    [[nodiscard]] int keyOf(int entry) const { return item(entry)->data(Qt::UserRole).toInt(); }
    [[nodiscard]] bool isTicked(int entry) const { return item(entry)->checkState() == Qt::Checked; }
    /// In the order of the list.
    [[nodiscard]] std::vector<int> tickedKeys() const;

Q_SIGNALS:
    /// Sent once for each change, of however many ticks, with the number that is ticked now.
    void ticksChanged(int ticked);

private:
    void tellTicks() { Q_EMIT ticksChanged(int(tickedKeys().size())); }
};
