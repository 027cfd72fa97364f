#pragma once

#include "statistics/run_controls.h"
#include "statistics/selection.h"

/// The club statistics: from the shots of a selection to the report table `stat_sticks`.
namespace verdane::Statistics {

/// What a run does in addition to filling the table.
struct club_run {
    /// The bar, and the report to be launched at the end; null for a silent run without both.
    const run_controls* controls = nullptr;
    /// Writes the number of clean shots of every club to the current row of `rssticks`, which the caller
    /// opens and commits.
    bool store_counts = false;
};

/// Fills the table. If the selection has no shot, a message box reports that, also in a silent run, and no
/// report opens; the table then has headings, names and zeros. Fails with `subscript` on a shot with a club
/// above 14.
void club_statistics(const selection_arguments& chosen, const club_run& run);

/// The same up to the finished table, without the report. False if there was no shot, which a
/// message box has reported.
bool fill_stat_sticks(const selection_arguments& chosen, bool store_counts, run_progress& bar);

}  // namespace verdane::Statistics
