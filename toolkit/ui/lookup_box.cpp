#include "toolkit/ui/lookup_box.h"

#include <QCompleter>
#include <QLineEdit>

LookupBox::LookupBox(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setMaxVisibleItems(16);
    completer()->setFilterMode(Qt::MatchContains);
    completer()->setCompletionMode(QCompleter::PopupCompletion);
    connect(this, &QComboBox::activated, this, &LookupBox::chosen);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &LookupBox::takeTyped);
}

void LookupBox::setSource(data::DataSet* set, const QString& keyField, const QString& showField) {
    m_set = set;
    m_keyField = keyField;
    m_showField = showField;
    connect(set, &data::DataSet::opened, this, &LookupBox::fill);
    fill();
}

void LookupBox::fill() {
    clear();
    if (!m_set->isOpen())
        return;
    const int field = m_set->fieldIndex(m_showField);
    QStringList texts;
    for (int row = 0; row < m_set->rowCount(); ++row)
        texts << data::textOf(m_set->valueAt(row, field));
    addItems(texts);
    setCurrentIndex(-1);
}

void LookupBox::setKey(const QVariant& key) {
    setCurrentIndex(m_set->locate({{m_keyField, key}}) ? m_set->row() : -1);
}

void LookupBox::setText(const QString& text) {
    setCurrentIndex(m_set->locate({{m_showField, text}}) ? m_set->row() : -1);
}

void LookupBox::chosen() {
    if (currentIndex() >= 0)
        m_set->goToRow(currentIndex());
    Q_EMIT closedUp();
}

void LookupBox::takeTyped() {
    const QString typed = lineEdit()->text();
    // Of entries that read alike the chosen one stays.
    if (typed == text())
        return;
    const int entry = findText(typed, Qt::MatchFixedString);
    setCurrentIndex(entry);
    if (entry < 0)
        lineEdit()->clear();
    chosen();
}
