#pragma once

#include "tests/robot/action.h"

/// The commands that speak to grids, check lists, dropped menus and tree drop-downs.
[[nodiscard]] const Actions& gridActions();
