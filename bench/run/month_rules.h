#pragma once

#include "run/reading/statements.h"
#include "toolkit/db/connection.h"

/// Replaces the company's rules by twelve components in every group: eight over the period, five of them with figures,
/// and four per day.
void installMonthRules(db::Connection& main);

/// All groups and the twelve components over the given month, with its loan payments.
[[nodiscard]] run::SessionSelections monthOf(db::Connection& main, const run::Window& month);
