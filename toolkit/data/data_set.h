#pragma once

#include "toolkit/data/record_table.h"

#include <QObject>
#include <QStringList>
#include <QStringView>

#include <functional>
#include <optional>

namespace data {

enum class State { Inactive, Browse, Edit, Insert };

/// What a screen hangs on a data set; called synchronously, also while the bound views are off.
struct Events {
    using Handler = std::function<void()>;
    Handler afterOpen, newRecord, afterPost, beforeCancel, afterCancel, beforeDelete, afterScroll;
};

/// One condition of a search: the field holds the value.
struct Match {
    QStringView field;
    QVariant value;
};
using Matches = std::vector<Match>;

struct Rows {
    std::vector<Field> fields;
    std::vector<Record> records;
};

/// Records with named typed fields and a cursor on one of them. Reading takes the current record, or what is being
/// entered for it; where there is none every field reads as NULL. Whatever moves the cursor ends an edit first: a
/// changed record is posted, an untouched one cancelled, so an appended record nobody filled in vanishes.
/// Field names go without regard to case. Wrong use throws Fault, a refused statement db::Fault.
class DataSet : public QObject {
    Q_OBJECT

public:
    explicit DataSet(QObject* parent = nullptr);

    Events events;

    void open();
    void close();
    /// Where the new records cannot be had the set stays as it is.
    void reopen();
    [[nodiscard]] bool isOpen() const { return m_state != State::Inactive; }
    [[nodiscard]] State state() const { return m_state; }
    /// A read-only set refuses append, edit and remove.
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }

    void first();
    void last();
    /// A step beyond the last record stays on it, and isEof() tells so.
    void next();
    /// Makes the record at a place of the list current; a place beyond either end means the record there.
    void goToRow(int row);
    /// Holds in an empty set, too.
    [[nodiscard]] bool isEof() const { return m_eof; }
    /// Stored records that show up; one that is being inserted does not count yet.
    [[nodiscard]] int recordCount() const { return int(m_table.rows().size()); }
    /// No record to stand on, not even one that is being inserted.
    [[nodiscard]] bool isEmpty() const { return rowCount() == 0; }

    // The list as a view shows it: counted from 0, with the record that is being inserted at its end.
    [[nodiscard]] int rowCount() const { return recordCount() + (m_state == State::Insert ? 1 : 0); }
    [[nodiscard]] int row() const { return m_row; }
    [[nodiscard]] const QVariant& valueAt(int row, int field) const;

    /// Moves to the first record that matches; false, and nothing moves, where there is none.
    bool locate(const Matches& matches);
    /// Place of the first match without moving; -1 where there is none.
    [[nodiscard]] int rowOf(const Matches& matches);

    /// Only records whose field holds the value show up, and the first of them is current. Stays in force when the set
    /// is opened again; on a closed set it waits for the opening.
    void setFilter(const QString& field, const QVariant& value);
    void clearFilter();

    [[nodiscard]] const std::vector<Field>& fields() const { return m_fields; }
    [[nodiscard]] int fieldIndex(QStringView name) const;
    [[nodiscard]] bool hasField(QStringView name) const;

    [[nodiscard]] const QVariant& value(QStringView field) const;
    [[nodiscard]] bool isNull(QStringView field) const { return !value(field).isValid(); }
    [[nodiscard]] QString text(QStringView field) const { return textOf(value(field)); }
    [[nodiscard]] qint64 integer(QStringView field) const { return integerOf(value(field)); }
    [[nodiscard]] qint32 integer32(QStringView field) const { return integer32Of(value(field)); }
    [[nodiscard]] double real(QStringView field) const { return realOf(value(field)); }
    [[nodiscard]] QDate date(QStringView field) const { return dateOf(value(field)); }

    /// Only while the record is being edited or inserted.
    void setValue(QStringView field, const QVariant& value);
    /// For bound edits: starts editing where need be.
    void editValue(QStringView field, const QVariant& value);

    /// Gives the field of every record the value, of those that the filter hides, too; no events.
    void setEverywhere(QStringView field, const QVariant& value);

    void append();
    /// In an empty set this appends.
    void edit();
    /// Nothing while browsing.
    void post();
    /// Deletes the current record; one that is being inserted is cancelled instead.
    void remove();
    /// What every move does first: posts a changed record, cancels an untouched one.
    void settle();

Q_SIGNALS:
    void opened();
    void closed();
    void stateChanged();
    void cursorMoved();
    void recordChanged(int row);
    void rowAboutToBeInserted(int row);
    void rowInserted(int row);
    void rowAboutToBeRemoved(int row);
    void rowRemoved(int row);
    /// Everything may be different: read all anew, whether it is open and its fields included.
    void reset();
    /// Bound edits hand over what is typed and not yet set. Sent even while the views are off.
    void flushRequested();

protected:
    /// The fields and records that the set opens with.
    [[nodiscard]] virtual Rows fetch() = 0;
    virtual void recordInserted(RowId) {}
    virtual void recordReplaced(RowId, const Record& /*before*/) {}
    virtual void recordRemoved(RowId, const Record& /*last*/) {}

    [[nodiscard]] const Record& record(RowId row) const { return m_table.record(row); }
    [[nodiscard]] const std::vector<RowId>& allRows() const { return m_table.allRows(); }
    void requireOpen() const;

private:
    friend class ViewsOff;
    friend class KeptPlace;

    struct FilterSetting {
        QString field;
        QVariant value;
    };
    struct Search {
        std::vector<int> fields;
        std::vector<QVariant> values;
    };

    [[nodiscard]] bool isEditing() const { return m_state == State::Edit || m_state == State::Insert; }
    [[nodiscard]] const Record* currentRecord() const;
    [[nodiscard]] Search searchOf(const Matches& matches) const;
    void show(Rows rows);
    void applyFilter();
    void requireWritable() const;
    void scrollTo(int row);
    void place(int row);
    void setState(State state);
    void startInsert();
    void cancel();
    void dropInsert();
    void dropEdit();
    void storeBuffer();
    void removeCurrent();
    void viewsOff() { ++m_viewsOff; }
    void viewsOn();

    static void call(const Events::Handler& handler) {
        if (handler)
            handler();
    }
    template <typename Signal, typename... Arguments>
    void tellViews(Signal signal, Arguments... arguments) {
        if (m_viewsOff > 0)
            m_viewsMissed = true;
        else
            Q_EMIT(this->*signal)(arguments...);
    }

    std::vector<Field> m_fields;
    RecordTable m_table;
    State m_state = State::Inactive;
    int m_row = 0;
    bool m_eof = true;
    bool m_modified = false;
    bool m_readOnly = false;
    Record m_buffer; ///< the current record while it is edited or inserted
    std::optional<FilterSetting> m_filter;
    int m_viewsOff = 0;
    bool m_viewsMissed = false;
};

/// Remembers which record is current, for a walk that moves the cursor and deletes records.
class KeptPlace final {
public:
    explicit KeptPlace(DataSet& set);

    /// Makes the record current again, or where it is gone the one that took its place: the next behind it, else the
    /// last. True for the record itself.
    bool restore() const;

private:
    DataSet& m_set;
    std::vector<RowId> m_rest; ///< the record and all behind it
};

/// While one lives, the views of the set are told nothing; the end of the outermost refreshes them once.
class ViewsOff final {
public:
    explicit ViewsOff(DataSet& set) : m_set(set) { m_set.viewsOff(); }
    ~ViewsOff() { m_set.viewsOn(); }
    ViewsOff(const ViewsOff&) = delete;
    ViewsOff& operator=(const ViewsOff&) = delete;

private:
    DataSet& m_set;
};

} // namespace data
