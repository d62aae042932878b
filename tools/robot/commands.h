#pragma once

#include "tools/robot/robot.h"

#include <QHash>

using Words = QStringList;

/// What one command does with the words behind its own name, and how many it takes.
struct Action {
    int least;
    int most;
    void (*run)(Robot&, const Words&);
};
using Actions = QHash<QString, Action>;

constexpr int anyNumber = 1000;

/// The commands that speak to grids, check lists and dropped menus.
[[nodiscard]] const Actions& gridActions();

/// Picks an entry of a tree drop-down, its steps parted by "/"; false where the control is none.
bool chooseInTree(QWidget* control, const QString& path, const QString& steps);
