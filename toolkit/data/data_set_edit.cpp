#include "toolkit/data/data_set.h"
#include "toolkit/data/fault.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace data {

void DataSet::setValue(QStringView field, const QVariant& value) {
    if (!isEditing())
        throw Fault(u"'%1' is set while the record is not being edited"_s.arg(field));
    const size_t index = size_t(fieldIndex(field));
    m_buffer[index] = toField(value, m_fields[index]);
    m_modified = true;
    tellViews(&DataSet::recordChanged, m_row);
}

void DataSet::editValue(QStringView field, const QVariant& value) {
    edit();
    setValue(field, value);
}

void DataSet::setEverywhere(QStringView field, const QVariant& value) {
    requireWritable();
    settle();
    const size_t index = size_t(fieldIndex(field));
    for (const RowId row : std::vector(m_table.allRows())) {
        Record changed = m_table.record(row);
        changed[index] = toField(value, m_fields[index]);
        const Record before = m_table.replace(row, std::move(changed));
        recordReplaced(row, before);
    }
    place(m_row);
    tellViews(&DataSet::reset);
}

void DataSet::append() {
    requireWritable();
    settle();
    startInsert();
    try {
        call(events.newRecord);
    } catch (...) {
        dropInsert();
        throw;
    }
    // Defaults do not make the record worth keeping.
    m_modified = false;
    call(events.afterScroll);
}

void DataSet::edit() {
    if (isEditing())
        return;
    requireWritable();
    if (isEmpty()) {
        append();
        return;
    }
    m_buffer = *currentRecord();
    m_modified = false;
    setState(State::Edit);
}

void DataSet::post() {
    requireOpen();
    if (!isEditing())
        return;
    Q_EMIT flushRequested();
    storeBuffer();
    call(events.afterPost);
}

void DataSet::cancel() {
    call(events.beforeCancel);
    const bool inserting = m_state == State::Insert;
    if (inserting)
        dropInsert();
    else
        dropEdit();
    call(events.afterCancel);
    if (inserting)
        call(events.afterScroll);
}

void DataSet::remove() {
    requireWritable();
    if (m_state == State::Insert) {
        cancel();
        return;
    }
    if (isEmpty())
        throw Fault(u"There is no record to delete"_s);
    call(events.beforeDelete);
    removeCurrent();
    call(events.afterScroll);
}

void DataSet::settle() {
    if (!isOpen())
        return;
    // What is typed may be the first change of the record, so it counts while browsing, too.
    Q_EMIT flushRequested();
    if (!isEditing())
        return;
    if (m_modified)
        post();
    else
        cancel();
}

void DataSet::requireWritable() const {
    requireOpen();
    if (m_readOnly)
        throw Fault(u"The data set is read-only"_s);
}

void DataSet::startInsert() {
    const int row = recordCount();
    tellViews(&DataSet::rowAboutToBeInserted, row);
    m_buffer.assign(m_fields.size(), {});
    m_row = row;
    m_eof = false;
    m_state = State::Insert;
    tellViews(&DataSet::rowInserted, row);
    tellViews(&DataSet::stateChanged);
    tellViews(&DataSet::cursorMoved);
}

void DataSet::dropInsert() {
    const int row = m_row;
    tellViews(&DataSet::rowAboutToBeRemoved, row);
    m_state = State::Browse;
    place(row);
    tellViews(&DataSet::rowRemoved, row);
    tellViews(&DataSet::stateChanged);
    tellViews(&DataSet::cursorMoved);
}

void DataSet::dropEdit() {
    setState(State::Browse);
    tellViews(&DataSet::recordChanged, m_row);
}

void DataSet::storeBuffer() {
    const int shownAt = m_row;
    RowId stored = 0;
    if (m_state == State::Insert) {
        stored = m_table.append(std::move(m_buffer));
        recordInserted(stored);
    } else {
        stored = m_table.rows()[size_t(m_row)];
        const Record before = m_table.replace(stored, std::move(m_buffer));
        recordReplaced(stored, before);
    }
    m_state = State::Browse;
    const int row = m_table.positionOf(stored);
    // A record that the filter now hides gives its place to the one behind it.
    place(row >= 0 ? row : shownAt);
    tellViews(&DataSet::stateChanged);
    if (row == shownAt)
        tellViews(&DataSet::recordChanged, row);
    else
        tellViews(&DataSet::reset);
}

void DataSet::removeCurrent() {
    const int row = m_row;
    const RowId removed = m_table.rows()[size_t(row)];
    tellViews(&DataSet::rowAboutToBeRemoved, row);
    const Record last = m_table.remove(removed);
    m_state = State::Browse;
    place(row);
    recordRemoved(removed, last);
    tellViews(&DataSet::rowRemoved, row);
    tellViews(&DataSet::stateChanged);
    tellViews(&DataSet::cursorMoved);
}

} // namespace data
