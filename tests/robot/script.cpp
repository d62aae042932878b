#include "tests/robot/script.h"

#include <cstdio>
#include <string>

namespace {

QChar unescaped(QChar c) {
    return c == u'n' ? QChar(u'\n') : c;
}

/// The quoted word that starts at `at`; moves `at` behind its closing quote.
QString quotedWord(const QString& line, qsizetype& at) {
    QString word;
    for (++at; at < line.size(); ++at) {
        if (line[at] == u'"') {
            ++at;
            return word;
        }
        const bool escape = line[at] == u'\\' && at + 1 < line.size();
        word += escape ? unescaped(line[++at]) : line[at];
    }
    throw CommandError(QStringLiteral("a quote is not closed"));
}

/// A word may begin plain and go on quoted, as in FIELD="two words".
QString oneWord(const QString& line, qsizetype& at) {
    QString word;
    while (at < line.size() && !line[at].isSpace()) {
        if (line[at] == u'"')
            word += quotedWord(line, at);
        else
            word += line[at++];
    }
    return word;
}

std::optional<QString> readLine(std::FILE* input) {
    std::string bytes;
    int c = std::fgetc(input);
    if (c == EOF)
        return std::nullopt;
    for (; c != EOF && c != '\n'; c = std::fgetc(input))
        bytes.push_back(char(c));
    return QString::fromStdString(bytes);
}

/// A number sign in front of a digit names a row by its position.
bool startsComment(const QString& line, qsizetype at) {
    return line[at] == u'#' && !(at + 1 < line.size() && line[at + 1].isDigit());
}

} // namespace

QStringList splitWords(const QString& line) {
    QStringList words;
    qsizetype at = 0;
    while (at < line.size() && !startsComment(line, at)) {
        if (line[at].isSpace())
            ++at;
        else
            words << oneWord(line, at);
    }
    return words;
}

std::optional<Command> Script::next() {
    while (const std::optional<QString> line = readLine(m_input)) {
        ++m_line;
        if (const QStringList words = splitWords(*line); !words.isEmpty())
            return Command{m_line, words};
    }
    return std::nullopt;
}
