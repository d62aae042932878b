#pragma once

#include <QString>
#include <QStringList>

#include <istream>
#include <optional>
#include <stdexcept>

/// A command that cannot be done as a person could do it, or that is not written as the language wants it.
class CommandFault final : public std::runtime_error {
public:
    explicit CommandFault(const QString& why) : std::runtime_error(why.toStdString()) {}
};

/// A script read line by line, so that a person or a program can type it while it runs.
class Script final {
public:
    explicit Script(std::istream& input) : m_input(input) {}
    /// The words of the next line that holds a command; none at the end. Throws CommandFault on an open quote.
    [[nodiscard]] std::optional<QStringList> next();
    /// The number of that line, from 1.
    [[nodiscard]] int line() const { return m_line; }

private:
    std::istream& m_input;
    int m_line = 0;
};
