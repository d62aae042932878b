#include "toolkit/ui/tree_box.h"

#include <QFrame>
#include <QKeyEvent>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr int shownLines = 18;
} // namespace

TreeBox::TreeBox(QWidget* parent) :
    QComboBox(parent), m_popup(new QFrame(this, Qt::Popup)), m_tree(new QTreeWidget(m_popup)) {
    // The combo's own list holds one entry, the text that is shown; what drops down is the tree.
    addItem(QString());
    // Pictures no taller than the text: the box stays as high as its neighbours.
    setIconSize(QSize(fontMetrics().height(), fontMetrics().height()));
    m_popup->setFrameShape(QFrame::StyledPanel);
    // A click on the box that closes the tree must not open it again.
    m_popup->setAttribute(Qt::WA_NoMouseReplay);
    auto* layout = new QVBoxLayout(m_popup);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tree);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->installEventFilter(this);
    connect(m_tree, &QTreeWidget::itemClicked, this, &TreeBox::take);
}

void TreeBox::clearTree() {
    m_chosen = nullptr;
    setItemText(0, QString());
    m_tree->clear();
}

void TreeBox::choose(QTreeWidgetItem* entry) {
    m_chosen = entry;
    m_tree->setCurrentItem(entry);
    setItemText(0, entry ? entry->text(0) : QString());
    setItemIcon(0, entry ? entry->icon(0) : QIcon());
}

void TreeBox::showPopup() {
    const QRect free = screen()->availableGeometry();
    const QSize size(std::max(width(), fontMetrics().averageCharWidth() * 50),
                     std::min(m_tree->fontMetrics().height() * shownLines * 5 / 4, free.height() / 2));
    QRect place(mapToGlobal(QPoint(0, height())), size);
    if (place.bottom() > free.bottom())
        place.moveBottom(mapToGlobal(QPoint()).y());
    place.moveLeft(std::max(free.left(), std::min(place.left(), free.right() - size.width())));
    m_popup->setGeometry(place);
    m_tree->setCurrentItem(m_chosen);
    m_popup->show();
    m_tree->setFocus();
    if (m_chosen)
        m_tree->scrollToItem(m_chosen, QTreeWidget::PositionAtCenter);
}

void TreeBox::hidePopup() {
    m_popup->hide();
}

bool TreeBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QComboBox::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        take(m_tree->currentItem());
        return true;
    }
    return QComboBox::eventFilter(watched, event);
}

void TreeBox::take(QTreeWidgetItem* entry) {
    hidePopup();
    if (!entry)
        return;
    choose(entry);
    Q_EMIT closedUp();
}
