#include "tools/robot/shown.h"

#include "toolkit/ui/caption.h"
#include "toolkit/ui/status_panels.h"
#include "tools/robot/script.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

/// The entries of a list; those of a tree, each with the steps to it.
QStringList entriesOf(const QAbstractItemModel* model, const QModelIndex& parent = {}, const QString& steps = {}) {
    QStringList entries;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex index = model->index(row, 0, parent);
        const QString entry = steps + index.data().toString();
        const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        entries << (ticked ? u"[x] "_s : QString()) + entry << entriesOf(model, index, entry + u'/');
    }
    return entries;
}

} // namespace

QString shownText(const QWidget* control) {
    if (qobject_cast<const QCheckBox*>(control) || qobject_cast<const QRadioButton*>(control))
        return control->property("checked").toBool() ? u"-1"_s : u"0"_s;
    if (qobject_cast<const StatusPanels*>(control))
        return shownItems(control).join(u" | "_s);
    const bool hasShortcut = qobject_cast<const QAbstractButton*>(control) || qobject_cast<const QGroupBox*>(control);
    // The first that a control has is what it shows: "text" of a line edit would be what is typed.
    for (const char* name : {"displayText", "currentText", "plainText", "text", "title"})
        if (const QVariant text = control->property(name); text.isValid())
            return hasShortcut ? captionText(text.toString()) : text.toString();
    if (!control->windowTitle().isEmpty())
        return control->windowTitle();
    throw CommandFault(u"%1 shows no text"_s.arg(control->objectName()));
}

QStringList shownItems(const QWidget* control) {
    QStringList items;
    if (const auto* tree = control->findChild<QTreeWidget*>())
        return entriesOf(tree->model());
    if (const auto* combo = qobject_cast<const QComboBox*>(control))
        return entriesOf(combo->model());
    if (const auto* list = qobject_cast<const QListWidget*>(control))
        return entriesOf(list->model());
    if (const auto* bar = qobject_cast<const StatusPanels*>(control)) {
        for (int i = 0; i < bar->panelCount(); ++i)
            items << bar->panelText(i);
        return items;
    }
    if (const auto* tabs = qobject_cast<const QTabWidget*>(control)) {
        for (int i = 0; i < tabs->count(); ++i)
            items << captionText(tabs->tabText(i));
        return items;
    }
    throw CommandFault(u"%1 has no entries"_s.arg(control->objectName()));
}

bool isReadOnly(const QWidget* control) {
    return control->property("readOnly").toBool();
}

QString oneLine(const QString& text) {
    return QString(text).replace(u'\n', u"\\n"_s).replace(u'\t', u"\\t"_s);
}

QString quoted(const QString& text) {
    QString inner = text;
    inner.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s).replace(u'\n', u"\\n"_s);
    return u'"' + inner + u'"';
}
