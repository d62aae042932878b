#pragma once

#include "run/reading/statements.h"

#include <QHash>
#include <QString>

#include <random>

/// A small company with nasty data and nasty rules, drawn from a seed: the statements that fill an empty database, and
/// what a run of it chooses.
class RandomCompany final {
public:
    explicit RandomCompany(unsigned seed);

    /// Each statement ends with a semicolon at the end of its line.
    [[nodiscard]] QString mainRows();
    [[nodiscard]] QString settingRows();
    [[nodiscard]] run::SessionSelections selections();
    /// What the date columns of its attendance are.
    [[nodiscard]] QString dateType() const { return m_dateType; }
    /// A table that the company lacks, or none.
    [[nodiscard]] QString missingTable();

private:
    [[nodiscard]] int below(int limit) { return int(m_random() % unsigned(limit)); }
    [[nodiscard]] bool once(int in) { return below(in) == 0; }
    [[nodiscard]] QString draw(const QString& choices);
    [[nodiscard]] QString rowsOf(const QString& table);
    [[nodiscard]] run::EmployeeChoice ticks();

    std::mt19937 m_random;
    const QString m_dateType;
    QHash<QString, QString> m_kinds; ///< choices by the name that stands for them
};
