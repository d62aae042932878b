#include "base/language.h"

#include "base/look_up.h"
#include "schema/settings_keys.h"
#include "toolkit/fault/drop_fault.h"
#include "toolkit/text/sql_text.h"
#include "toolkit/ui/grid_column.h"
#include "toolkit/ui/input_dialog.h"
#include "toolkit/ui/message_dialog.h"
#include "toolkit/ui/named_text.h"
#include "toolkit/ui/plain_text.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace base {

namespace {

/// What stands in the table where a text was not translated.
const QString untranslated = u"''"_s;

void requireEntry(int no_index, int count) {
    if (no_index < 0 || no_index >= count)
        throw std::out_of_range("list index out of bounds: " + std::to_string(no_index));
}

void applyToLabel(QLabel& label, const QString& text) {
    label.setTextFormat(Qt::PlainText);
    label.setText(text);
}

void applyToCombo(QComboBox& combo, const QString& text, int no_index) {
    if (no_index == -1) {
        combo.setCurrentText(text);
        return;
    }
    requireEntry(no_index, combo.count());
    combo.setItemText(no_index, text);
}

void applyToTabs(QTabWidget& tabs, const QString& text, int no_index) {
    requireEntry(no_index, tabs.count());
    tabs.setTabText(no_index, text);
}

/// Caption at -1, buttons or other texts from 0 on.
template <typename Dialog>
void applyToDialog(Dialog& dialog, const QString& text, int no_index) {
    if (no_index == -1)
        dialog.setCaption(text);
    else
        dialog.setText(no_index, text);
}

/// Each class of control takes the text in its own way; a class that shows no text takes nothing.
void applyText(QObject* target, const QString& text, int no_index) {
    if (auto* column = qobject_cast<GridColumn*>(target))
        column->setCaption(text);
    else if (auto* band = qobject_cast<GridBand*>(target))
        band->setCaption(text);
    else if (auto* label = qobject_cast<QLabel*>(target))
        applyToLabel(*label, text);
    else if (auto* button = qobject_cast<QAbstractButton*>(target))
        no_index == -1 ? button->setText(text) : button->setToolTip(plainToolTip(text));
    else if (auto* combo = qobject_cast<QComboBox*>(target))
        applyToCombo(*combo, text, no_index);
    else if (auto* group = qobject_cast<QGroupBox*>(target))
        group->setTitle(text);
    else if (auto* tabs = qobject_cast<QTabWidget*>(target))
        applyToTabs(*tabs, text, no_index);
    else if (auto* action = qobject_cast<QAction*>(target))
        action->setText(text);
    else if (auto* menu = qobject_cast<QMenu*>(target))
        menu->setTitle(text);
    else if (auto* message = qobject_cast<MessageDialog*>(target))
        applyToDialog(*message, text, no_index);
    else if (auto* input = qobject_cast<InputDialog*>(target))
        applyToDialog(*input, text, no_index);
    else if (auto* named = qobject_cast<NamedText*>(target))
        named->setText(text);
}

} // namespace

QObject* findComponent(QWidget& form, const QString& name) {
    if (form.objectName().compare(name, Qt::CaseInsensitive) == 0)
        return &form;
    for (QObject* child : form.findChildren<QObject*>())
        if (child->objectName().compare(name, Qt::CaseInsensitive) == 0)
            return child;
    return nullptr;
}

void Language::ApplyLanguage(QWidget& form) {
    fault::dropFault("teks layar dalam bahasa terpilih", [&] { applyRows(form); });
}

void Language::applyRows(QWidget& form) {
    m_lang_column = readSetting(m_session.ADOConn_lang, schema::defaultLang);
    data::SqlQuery& sql = m_session.sql_temp_lang;
    sql.openSql(u"select * from change_lang where com_form="_s + quotedSqlText(form.objectName()) + u' ');
    for (; !sql.isEof(); sql.next()) {
        const QString text = sql.text(m_lang_column);
        QObject* target = findComponent(form, sql.text(u"com_name"));
        if (!target || text == untranslated)
            continue;
        if (target == &form)
            form.setWindowTitle(text);
        else
            applyText(target, text, sql.integer32(u"no_index"));
    }
}

} // namespace base
