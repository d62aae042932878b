#include "tools/company/bulk_insert.h"

#include "toolkit/text/sql_text.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace company {

namespace {

constexpr qsizetype fullAt = 1'000'000;

} // namespace

BulkInsert::BulkInsert(db::Connection& connection, const QByteArray& into) :
    m_connection(connection), m_sql("INSERT INTO " + into + " VALUES "), m_head(m_sql.size()) {
    m_sql.reserve(fullAt + 4096);
}

void BulkInsert::finish() {
    if (m_sql.size() == m_head)
        return;
    m_connection.execute(QString::fromUtf8(m_sql));
    m_sql.resize(m_head);
}

void BulkInsert::sendWhenFull() {
    if (m_sql.size() >= fullAt)
        finish();
}

void BulkInsert::put(const QString& text) {
    putToken(text.isNull() ? "NULL" : EscapeSqlText(text).toUtf8());
}

void BulkInsert::put(QDate date) {
    putToken(date.isValid() ? '\'' + date.toString(Qt::ISODate).toLatin1() + '\'' : "NULL");
}

void BulkInsert::put(const QDateTime& moment) {
    putToken('\'' + moment.toString(u"yyyy-MM-dd HH:mm"_s).toLatin1() + '\'');
}

void BulkInsert::put(Hours hours) {
    // Written by hand: a large company has tens of millions of these.
    m_sql += QByteArray::number(hours.hundredths / 100);
    if (const int rest = hours.hundredths % 100; rest != 0) {
        m_sql += '.';
        m_sql += char('0' + rest / 10);
        m_sql += char('0' + rest % 10);
    }
    m_sql += ',';
}

void BulkInsert::putToken(const QByteArray& token) {
    m_sql += token;
    m_sql += ',';
}

} // namespace company
