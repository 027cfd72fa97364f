#pragma once

#include <QString>

#include "run_controls.h"
#include "selection_arguments.h"

/// The cost statistics: the costs of a selection's rounds into the report table `r_cost`. All adding up
/// is the template's.
namespace verdane::Statistics {

/// Removes every row of `r_cost`.
void empty_cost_report();

/// The costs of the rounds of a selection; a round without a row of costs is left out.
QString cost_select(const selection_arguments& chosen);

/// Fills the table, moving the bar by 3 for each round up to its end, and launches the report as its
/// last act. Without a row it says so and no report opens; `rscost` then keeps the selection's statement
/// as its source. An amount beyond 32 bits fails with `overflow`, and the table is as it was.
void cost_statistics(const selection_arguments& chosen, const run_controls& controls);

/// The same up to the finished table, without the report. False when there is nothing to print; the
/// user has been told why.
bool fill_r_cost(const selection_arguments& chosen, run_progress& bar);

}  // namespace verdane::Statistics
