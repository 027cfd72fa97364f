#pragma once

#include <optional>

#include "scoring/season_rounds.h"
#include "statistics/run_controls.h"
#include "statistics/selection.h"

/// The round statistics: from a selection to the report table `stats` and its report.
namespace verdane::Statistics {

/// Fills the table, moving the bar, and finally launches the report. If no round matches the selection, or a
/// round lacks one of its rows, a message box reports that and no report opens. Every recordset is closed on
/// return.
void round_statistics(const selection_arguments& chosen, const run_controls& controls);

/// Fills the table without launching the report. Returns the rounds of the selection, for the pages about the
/// season; no value if there is nothing to print, which a message box has reported.
std::optional<season_rounds> rounds_in_stats(const selection_arguments& chosen, run_progress& bar);

}  // namespace verdane::Statistics
