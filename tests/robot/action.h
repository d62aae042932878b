#pragma once

#include "tests/robot/robot.h"

#include <QHash>
#include <QStringList>

using Words = QStringList;

/// What one command does with the words behind its own name, and how many it takes.
struct Action {
    int least;
    int most;
    void (*run)(Robot&, const Words&);
};
using Actions = QHash<QString, Action>;

constexpr int anyNumber = 1000;
