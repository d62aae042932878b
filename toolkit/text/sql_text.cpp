#include "toolkit/text/sql_text.h"

QString EscapeSqlText(const QString& text) {
    QString inner = text;
    inner.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("''"));
    return u'\'' + inner + u'\'';
}

QString quotedSqlText(const QString& text) {
    QString out;
    out.reserve(text.size() + 2);
    out += u'\'';
    qsizetype run = 0;
    for (const QChar c : text) {
        if (c == u'\'') {
            out += run % 2 ? QStringLiteral("\\''") : QStringLiteral("''");
            run = 0;
            continue;
        }
        run = c == u'\\' ? run + 1 : 0;
        out += c;
    }
    if (run % 2)
        out += u'\\';
    return out + u'\'';
}
