#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <stdexcept>
#include <vector>

/// A command that cannot be done as a person could do it, or that is not written as the language wants it.
class CommandError final : public std::runtime_error {
public:
    explicit CommandError(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// One command of a script: its words, and the line it stands on.
struct Command {
    int line = 0;
    QStringList words;
};

/// The words of one line: parted by blanks, a word in double quotes may hold blanks and \" \\ \n; # starts a comment.
/// Throws CommandError on an open quote.
[[nodiscard]] QStringList splitWords(const QString& line);

/// A script read line by line, so that a person or a program can type it while it runs.
class Script final {
public:
    explicit Script(std::FILE* input) : m_input(input) {}
    /// The next line that holds a command; none at the end.
    [[nodiscard]] std::optional<Command> next();
    [[nodiscard]] int line() const { return m_line; }

private:
    std::FILE* m_input;
    int m_line = 0;
};
