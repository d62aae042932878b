#include "toolkit/db/parameters.h"

#include "toolkit/db/fault.h"
#include "toolkit/text/number_text.h"
#include "toolkit/text/sql_text.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace db {

namespace {

bool isNamePart(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

/// Position behind the quoted text, quoted name or comment that starts at `at`; `at` itself where none starts there.
qsizetype skipOpaque(const QString& sql, qsizetype at) {
    const QChar c = sql[at];
    const QStringView rest = QStringView(sql).mid(at);
    if (rest.startsWith(u"/*")) {
        const qsizetype end = sql.indexOf("*/"_L1, at + 2);
        return end < 0 ? sql.size() : end + 2;
    }
    if (c == u'#' || rest.startsWith(u"-- ")) {
        const qsizetype end = sql.indexOf(u'\n', at);
        return end < 0 ? sql.size() : end;
    }
    if (c != u'\'' && c != u'"' && c != u'`')
        return at;
    // A doubled quote closes and at once reopens the literal, which gives the same end.
    for (qsizetype i = at + 1; i < sql.size(); ++i) {
        if (sql[i] == u'\\' && c != u'`')
            ++i;
        else if (sql[i] == c)
            return i + 1;
    }
    return sql.size();
}

} // namespace

QString literal(const QVariant& value) {
    if (value.isNull() || !value.isValid())
        return u"NULL"_s;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"-1"_s : u"0"_s;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toString();
    case QMetaType::Double:
        return plainNumber(value.toDouble());
    case QMetaType::QDate:
        return value.toDate().toString(u"''yyyy-MM-dd''"_s);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(u"''yyyy-MM-dd HH:mm:ss''"_s);
    default:
        return EscapeSqlText(value.toString());
    }
}

QString bindParameters(const QString& sql, const Parameters& values) {
    QMap<QString, QString> literals;
    for (auto it = values.begin(); it != values.end(); ++it)
        literals.insert(it.key().toLower(), literal(it.value()));
    QString bound;
    qsizetype at = 0;
    while (at < sql.size()) {
        const qsizetype behind = skipOpaque(sql, at);
        const bool isName = behind == at && sql[at] == u':' && at + 1 < sql.size() && isNamePart(sql[at + 1]);
        if (!isName) {
            const qsizetype end = behind == at ? at + 1 : behind;
            bound += QStringView(sql).mid(at, end - at);
            at = end;
            continue;
        }
        qsizetype end = at + 1;
        while (end < sql.size() && isNamePart(sql[end]))
            ++end;
        const QString name = sql.mid(at + 1, end - at - 1).toLower();
        if (!literals.contains(name))
            throw Fault(0, {}, u"Parameter '%1' has no value"_s.arg(name), sql);
        bound += literals.value(name);
        at = end;
    }
    return bound;
}

} // namespace db
