#pragma once

#include "statistics/run_controls.h"
#include "statistics/selected_rounds.h"

/// The round statistics: from a selection to the report table `stats` and its report.
namespace verdane::Statistics {

/// Fills the table, moving the bar, and launches the report as its last act. A selection without a
/// round ends in a message and no report; so does a round that lacks one of its rows. No recordset is
/// left open.
void round_statistics(const selection_arguments& chosen, const run_controls& controls);

/// The same up to the finished table, without the report. False when there is nothing to print; the
/// user has been told why.
bool fill_stats(const selection_arguments& chosen, run_progress& bar);

struct filled_lines {
    missing_row missing = missing_row::none;
    int16 rounds = 0;
};

/// The summary pass: adds up the rounds of the selection and writes all rows of `stats` through
/// `rsstats`, which the caller has opened; zeros when no round passes. Reads the two keys and the three
/// plain values. When a round lacks one of its rows nothing is written. The other recordsets are
/// closed on return and `rsgames` has the source "Select * from games".
filled_lines fill_round_lines(const selection_arguments& chosen);

}  // namespace verdane::Statistics
