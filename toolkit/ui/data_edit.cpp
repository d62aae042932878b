#include "toolkit/ui/data_edit.h"

#include "toolkit/text/number_text.h"
#include "toolkit/ui/handler.h"

#include <QRegularExpressionValidator>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

/// Whatever can change what a bound edit shows.
template <typename Edit>
void followSet(data::DataSet& set, Edit* edit, void (Edit::*show)()) {
    QObject::connect(&set, &data::DataSet::cursorMoved, edit, show);
    QObject::connect(&set, &data::DataSet::recordChanged, edit, show);
    QObject::connect(&set, &data::DataSet::reset, edit, show);
    QObject::connect(&set, &data::DataSet::opened, edit, show);
    QObject::connect(&set, &data::DataSet::stateChanged, edit, show);
}

} // namespace

void acceptOnly(QLineEdit& edit, const QString& characters, int atMost) {
    const QString pattern = u"[%1]{0,%2}"_s.arg(QRegularExpression::escape(characters)).arg(atMost);
    edit.setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), &edit));
}

DataEdit::DataEdit(QWidget* parent) : QLineEdit(parent) {}

void DataEdit::bind(data::DataSet& set, const QString& field) {
    m_set = &set;
    m_field = field;
    followSet(set, this, &DataEdit::showValue);
    connect(&set, &data::DataSet::flushRequested, this, &DataEdit::writeValue);
    connect(this, &QLineEdit::editingFinished, this, &DataEdit::writeValue);
    showValue();
}

void DataEdit::showValue() {
    // What is being typed is not in the set yet and must not be lost.
    if (isModified())
        return;
    const bool shown = m_set->isOpen() && m_set->hasField(m_field) && !m_set->isNull(m_field);
    setText(!shown ? QString() : m_money ? groupedInteger(m_set->real(m_field)) : m_set->text(m_field));
}

void DataEdit::writeValue() {
    if (!isModified() || isReadOnly())
        return;
    setModified(false);
    showingFaults(window(), [this] { m_set->editValue(m_field, text()); });
}

DataDateEdit::DataDateEdit(QWidget* parent) : QDateEdit(parent) {
    setCalendarPopup(true);
}

void DataDateEdit::bind(data::DataSet& set, const QString& field) {
    m_set = &set;
    m_field = field;
    followSet(set, this, &DataDateEdit::showValue);
    connect(this, &QDateEdit::dateChanged, this,
            [this](const QDate& date) { showingFaults(window(), [&] { m_set->editValue(m_field, date); }); });
    showValue();
}

void DataDateEdit::showValue() {
    if (!m_set->isOpen() || m_set->isNull(m_field))
        return;
    const QSignalBlocker quiet(this);
    setDate(m_set->date(m_field));
}
