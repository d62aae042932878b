#include "toolkit/text/sql_text.h"

using namespace Qt::StringLiterals;

QString EscapeSqlText(const QString& text) {
    QString inner = text;
    inner.replace(u'\\', u"\\\\"_s).replace(u'\'', u"''"_s);
    return u'\'' + inner + u'\'';
}

QString quotedSqlText(const QString& text) {
    QString out;
    out.reserve(text.size() + 2);
    out += u'\'';
    qsizetype run = 0;
    for (const QChar c : text) {
        if (c == u'\'') {
            out += run % 2 ? u"\\''"_s : u"''"_s;
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
