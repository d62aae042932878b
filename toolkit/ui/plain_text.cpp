#include "toolkit/ui/plain_text.h"

#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostCharacters = 1200;
constexpr int mostInARow = 40;
constexpr QChar zeroWidthSpace(0x200b);

} // namespace

QString singleLine(const QString& text) {
    QString line = text;
    for (QChar& c : line)
        if (c == u'\n' || c == u'\r' || c == u'\t' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    return line;
}

QString readable(const QString& text) {
    const qsizetype end =
        mostCharacters - (text.size() > mostCharacters && text[mostCharacters - 1].isHighSurrogate() ? 1 : 0);
    const QString start = text.size() > mostCharacters ? text.left(end) + QChar(0x2026) : text;
    QString broken;
    int inARow = 0;
    // By what is seen as one character: nothing may come between the parts of one.
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, start);
    for (qsizetype from = 0, to = finder.toNextBoundary(); to > from; from = to, to = finder.toNextBoundary()) {
        inARow = start[from].isSpace() ? 0 : inARow + 1;
        if (inARow > mostInARow) {
            broken += zeroWidthSpace;
            inARow = 1;
        }
        broken += QStringView(start).sliced(from, to - from);
    }
    return broken;
}

QString plainToolTip(const QString& text) {
    return text.isEmpty() ? QString() : u"<qt>%1</qt>"_s.arg(readable(text).toHtmlEscaped());
}
