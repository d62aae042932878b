#include "tools/robot/script.h"

#include <string>

using namespace Qt::StringLiterals;

namespace {

/// A number sign in front of a digit names a row by its position.
bool startsComment(const QString& line, qsizetype at) {
    return line[at] == u'#' && !(at + 1 < line.size() && line[at + 1].isDigit());
}

/// The words of one line: parted by blanks; what stands in double quotes, a word or the end of one, may hold blanks and
/// \" \\ \n; # starts a comment.
QStringList splitWords(const QString& line) {
    QStringList words;
    bool inWord = false;
    bool inQuotes = false;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar c = line[at];
        if (!inWord && startsComment(line, at))
            break;
        const bool blank = c.isSpace() && !inQuotes;
        if (!blank && !inWord)
            words << QString();
        inWord = !blank;
        if (c == u'"')
            inQuotes = !inQuotes;
        else if (c == u'\\' && inQuotes && ++at < line.size())
            words.last() += line[at] == u'n' ? u'\n' : line[at];
        else if (inWord)
            words.last() += c;
    }
    if (inQuotes)
        throw CommandFault(u"a quote is not closed"_s);
    return words;
}

} // namespace

std::optional<QStringList> Script::next() {
    for (std::string bytes; std::getline(m_input, bytes);) {
        ++m_line;
        if (const QStringList words = splitWords(QString::fromStdString(bytes)); !words.isEmpty())
            return words;
    }
    return std::nullopt;
}
