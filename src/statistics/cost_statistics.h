#pragma once

#include <QString>

#include "statistics/run_controls.h"
#include "statistics/selection.h"
#include "store/scoped_source.h"

/// The cost statistics: copy the costs of the selected rounds to the report table `r_cost`. The report
/// template adds them up.
namespace verdane::Statistics {

/// Removes every row of `r_cost`.
void empty_cost_report();

/// Sets the statement of `rscost` on the whole table at the end of its scope. A run without costs leaves a
/// statement in force whose rows are read-only, and other windows write to this recordset.
[[nodiscard]] scoped_source whole_cost_table_afterwards();

/// The statement that selects the costs of the selected rounds. A round without a row of costs is left out.
QString cost_select(const selection_arguments& chosen);

/// Fills the table, moving the bar by 3 for each round up to its end, and finally launches the
/// report. If there is no row, a message box reports that and no report opens; the statement of the
/// selection then remains the source of `rscost`. An amount that exceeds 32 bits fails with `overflow` and
/// leaves the table unchanged.
void cost_statistics(const selection_arguments& chosen, const run_controls& controls);

/// The same up to the finished table, without the report. False if there is nothing to print,
/// which a message box has reported.
bool fill_r_cost(const selection_arguments& chosen, run_progress& bar);

}  // namespace verdane::Statistics
