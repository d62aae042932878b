#pragma once

#include "run/assembly.h"

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
    [[nodiscard]] run::Selections selections();
    [[nodiscard]] double round_value();
    /// A table that the company lacks, or none.
    [[nodiscard]] QString missingTable();

private:
    [[nodiscard]] int below(int limit);
    [[nodiscard]] bool once(int in);
    [[nodiscard]] QString pick(std::initializer_list<const char*> values);
    template <typename Row>
    [[nodiscard]] QString insert(const char* into, int rows, Row row);
    [[nodiscard]] QString day();
    [[nodiscard]] QString amount();
    [[nodiscard]] QString money();
    [[nodiscard]] QString source();
    [[nodiscard]] QString figureOrComponent();
    [[nodiscard]] QString people();
    [[nodiscard]] QString components();
    [[nodiscard]] QString rules();
    [[nodiscard]] QString attendance();
    [[nodiscard]] QString loans();
    [[nodiscard]] run::EmployeeChoice ticks();

    std::mt19937 m_random;
    bool m_eighths; ///< amounts in eighths, whose sums meet ties, else with two decimals; mixed, the order would matter
};
