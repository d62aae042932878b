#pragma once

#include "tests/robot/action.h"

/// The commands that read and save the report in the topmost preview.
[[nodiscard]] const Actions& reportActions();
