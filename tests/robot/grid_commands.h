#pragma once

#include "tests/robot/action.h"

/// The commands that speak to grids, check lists, dropped menus and tree drop-downs.
[[nodiscard]] const Actions& gridActions();

/// Picks an entry of a tree drop-down, its steps parted by "/"; false where the control is none.
bool chooseInTree(QWidget* control, const QString& path, const QString& steps);
