#pragma once

#include <QComboBox>

class QFrame;
class QTreeWidget;
class QTreeWidgetItem;

/// A drop-down that shows a tree and holds one of its entries; it shows the text of that entry alone.
class TreeBox final : public QComboBox {
    Q_OBJECT

public:
    explicit TreeBox(QWidget* parent = nullptr);

    /// The tree that drops down, to be filled by the screen; after that choose() gives the box its entry.
    [[nodiscard]] QTreeWidget& tree() { return *m_tree; }
    /// Drops all entries.
    void clearTree();
    void choose(QTreeWidgetItem* entry);
    /// Null as long as nothing was chosen.
    [[nodiscard]] const QTreeWidgetItem* chosen() const { return m_chosen; }
    [[nodiscard]] QString text() const { return currentText(); }

    void showPopup() override;
    void hidePopup() override;

Q_SIGNALS:
    /// The user has chosen an entry.
    void closedUp();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(QTreeWidgetItem* entry);

    QFrame* m_popup;
    QTreeWidget* m_tree;
    QTreeWidgetItem* m_chosen = nullptr;
};
