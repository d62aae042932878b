#pragma once

#include "toolkit/db/connection.h"

#include <QByteArray>
#include <QDate>

namespace company {

/// Hundredths of an hour, written as decimal hours: 150 is 1.50.
struct Hours {
    int hundredths = 0;
};

/// A flag as the tables hold it: -1 for true, 0 for false.
struct Flag {
    bool on = false;
};

/// Text that is a literal already.
struct Literal {
    QByteArray sql;
};

/// Inserts rows into one table in statements of about a megabyte. Rows that finish() has not sent are lost.
class BulkInsert final {
public:
    /// into: the table and its column list, as in "holiday (holiday_date)".
    BulkInsert(db::Connection& connection, const QByteArray& into);

    template <typename... Values>
    void row(const Values&... values) {
        m_sql += m_sql.size() == m_head ? "(" : ",(";
        (put(values), ...);
        m_sql.back() = ')';
        sendWhenFull();
    }

    void finish();

private:
    // Each value ends with a comma; the row's last one becomes its bracket.
    void put(int value) { putToken(QByteArray::number(value)); }
    void put(double value) { putToken(QByteArray::number(value, 'g', 15)); }
    void put(const QString& text);
    void put(QDate date);
    void put(const QDateTime& moment);
    void put(Flag flag) { putToken(flag.on ? "-1" : "0"); }
    void put(const Literal& literal) { putToken(literal.sql); }
    void put(std::nullptr_t) { putToken("NULL"); }
    void put(Hours hours);
    void putToken(const QByteArray& token);
    void sendWhenFull();

    db::Connection& m_connection;
    QByteArray m_sql;
    qsizetype m_head;
};

} // namespace company
