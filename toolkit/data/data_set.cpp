#include "toolkit/data/data_set.h"

#include "toolkit/data/fault.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace data {

namespace {

const QVariant nullValue;

} // namespace

DataSet::DataSet(QObject* parent) : QObject(parent) {}

void DataSet::open() {
    if (!isOpen())
        show(fetch());
}

void DataSet::show(Rows rows) {
    m_fields = std::move(rows.fields);
    m_table.load(std::move(rows.records));
    applyFilter();
    m_state = State::Browse;
    place(0);
    tellViews(&DataSet::opened);
    call(events.afterOpen);
    if (!isEmpty())
        call(events.afterScroll);
}

void DataSet::close() {
    if (!isOpen())
        return;
    m_state = State::Inactive;
    m_table.load({});
    m_fields.clear();
    m_buffer.clear();
    place(0);
    tellViews(&DataSet::closed);
}

void DataSet::reopen() {
    Rows rows = fetch();
    close();
    show(std::move(rows));
}

void DataSet::first() {
    requireOpen();
    settle();
    scrollTo(0);
}

void DataSet::last() {
    requireOpen();
    settle();
    scrollTo(recordCount() - 1);
}

void DataSet::next() {
    requireOpen();
    settle();
    if (m_eof)
        return;
    const bool isLast = m_row + 1 == recordCount();
    place(m_row + 1);
    m_eof = isLast;
    tellViews(&DataSet::cursorMoved);
    call(events.afterScroll);
}

void DataSet::goToRow(int row) {
    requireOpen();
    settle();
    scrollTo(row);
}

const QVariant& DataSet::valueAt(int row, int field) const {
    if (row == m_row) {
        const Record* current = currentRecord();
        return current ? (*current)[size_t(field)] : nullValue;
    }
    return m_table.record(m_table.rows().at(size_t(row)))[size_t(field)];
}

KeptPlace::KeptPlace(DataSet& set) : m_set(set) {
    const std::vector<RowId>& rows = set.m_table.rows();
    m_rest.assign(rows.begin() + std::min(set.m_row, set.recordCount()), rows.end());
}

bool KeptPlace::restore() const {
    m_set.settle();
    for (const RowId record : m_rest)
        if (const int row = m_set.m_table.positionOf(record); row >= 0) {
            m_set.goToRow(row);
            return record == m_rest.front();
        }
    m_set.last();
    return false;
}

bool DataSet::locate(const Matches& matches) {
    requireOpen();
    settle();
    const int row = rowOf(matches);
    if (row >= 0)
        scrollTo(row);
    return row >= 0;
}

int DataSet::rowOf(const Matches& matches) {
    requireOpen();
    const Search search = searchOf(matches);
    const std::optional<RowId> found = m_table.find(search.fields, search.values);
    return found ? m_table.positionOf(*found) : -1;
}

void DataSet::setFilter(const QString& field, const QVariant& value) {
    if (isOpen())
        settle();
    m_filter = FilterSetting{.field = field, .value = value};
    applyFilter();
}

void DataSet::clearFilter() {
    if (isOpen())
        settle();
    m_filter.reset();
    applyFilter();
}

int DataSet::fieldIndex(QStringView name) const {
    for (size_t i = 0; i < m_fields.size(); ++i)
        if (name.compare(m_fields[i].name, Qt::CaseInsensitive) == 0)
            return int(i);
    throw Fault(u"Field '%1' not found"_s.arg(name));
}

bool DataSet::hasField(QStringView name) const {
    return std::ranges::any_of(
        m_fields, [name](const Field& field) { return name.compare(field.name, Qt::CaseInsensitive) == 0; });
}

const QVariant& DataSet::value(QStringView field) const {
    const int index = fieldIndex(field);
    const Record* current = currentRecord();
    return current ? (*current)[size_t(index)] : nullValue;
}

void DataSet::requireOpen() const {
    if (!isOpen())
        throw Fault(u"The data set is closed"_s);
}

const Record* DataSet::currentRecord() const {
    if (isEditing())
        return &m_buffer;
    return m_row < recordCount() ? &m_table.record(m_table.rows()[size_t(m_row)]) : nullptr;
}

DataSet::Search DataSet::searchOf(const Matches& matches) const {
    Search search;
    for (const Match& match : matches) {
        const int field = fieldIndex(match.field);
        search.fields.push_back(field);
        search.values.push_back(toField(match.value, m_fields[size_t(field)]));
    }
    return search;
}

void DataSet::applyFilter() {
    if (m_fields.empty())
        return;
    if (m_filter) {
        const int field = fieldIndex(m_filter->field);
        m_table.setFilter(field, toField(m_filter->value, m_fields[size_t(field)]));
    } else {
        m_table.clearFilter();
    }
    if (!isOpen())
        return;
    place(0);
    tellViews(&DataSet::reset);
    first();
}

void DataSet::scrollTo(int row) {
    place(row);
    tellViews(&DataSet::cursorMoved);
    call(events.afterScroll);
}

void DataSet::place(int row) {
    m_row = std::clamp(row, 0, std::max(0, recordCount() - 1));
    m_eof = recordCount() == 0;
}

void DataSet::setState(State state) {
    m_state = state;
    tellViews(&DataSet::stateChanged);
}

void DataSet::viewsOn() {
    if (--m_viewsOff > 0 || !std::exchange(m_viewsMissed, false))
        return;
    Q_EMIT reset();
}

} // namespace data
