#include "tests/robot/shown.h"

#include "tests/robot/script.h"
#include "toolkit/ui/caption.h"
#include "toolkit/ui/status_panels.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

namespace {

QStringList panelTexts(const StatusPanels* bar) {
    QStringList texts;
    for (int i = 0; i < bar->panelCount(); ++i)
        texts << bar->panelText(i);
    return texts;
}

QStringList listItems(const QListWidget* list) {
    QStringList items;
    for (int i = 0; i < list->count(); ++i) {
        const QListWidgetItem* item = list->item(i);
        const bool ticked = item->data(Qt::CheckStateRole).toInt() == Qt::Checked;
        items << (ticked ? QStringLiteral("[x] ") : QString()) + item->text();
    }
    return items;
}

QStringList treeItems(const QTreeWidgetItem& parent, const QString& path) {
    QStringList items;
    for (int i = 0; i < parent.childCount(); ++i) {
        const QTreeWidgetItem& item = *parent.child(i);
        items << path + item.text(0);
        items << treeItems(item, items.last() + u'/');
    }
    return items;
}

} // namespace

QString shownText(const QWidget* control) {
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return edit->displayText();
    if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(control))
        return spin->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(control))
        return combo->currentText();
    if (const auto* note = qobject_cast<const QPlainTextEdit*>(control))
        return note->toPlainText();
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
        const bool isMark = qobject_cast<const QCheckBox*>(button) || qobject_cast<const QRadioButton*>(button);
        return isMark ? QString::number(button->isChecked() ? -1 : 0) : captionText(button->text());
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(control))
        return captionText(group->title());
    if (const auto* bar = qobject_cast<const StatusPanels*>(control))
        return panelTexts(bar).join(QStringLiteral(" | "));
    if (!control->windowTitle().isEmpty())
        return control->windowTitle();
    throw CommandError(QStringLiteral("%1 shows no text").arg(control->objectName()));
}

QStringList shownItems(const QWidget* control) {
    QStringList items;
    if (auto* tree = control->findChild<QTreeWidget*>())
        return treeItems(*tree->invisibleRootItem(), {});
    if (const auto* combo = qobject_cast<const QComboBox*>(control)) {
        for (int i = 0; i < combo->count(); ++i)
            items << combo->itemText(i);
        return items;
    }
    if (const auto* list = qobject_cast<const QListWidget*>(control))
        return listItems(list);
    if (const auto* bar = qobject_cast<const StatusPanels*>(control))
        return panelTexts(bar);
    if (const auto* tabs = qobject_cast<const QTabWidget*>(control)) {
        for (int i = 0; i < tabs->count(); ++i)
            items << captionText(tabs->tabText(i));
        return items;
    }
    throw CommandError(QStringLiteral("%1 has no entries").arg(control->objectName()));
}

bool isReadOnly(const QWidget* control) {
    return control->property("readOnly").toBool();
}

QString oneLine(const QString& text) {
    return QString(text).replace(u'\n', QStringLiteral("\\n")).replace(u'\t', QStringLiteral("\\t"));
}

QString quoted(const QString& text) {
    QString inner = text;
    inner.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'"', QStringLiteral("\\\""))
        .replace(u'\n', QStringLiteral("\\n"));
    return u'"' + inner + u'"';
}
