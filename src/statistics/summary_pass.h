#pragma once

#include "scoring/season_rounds.h"
#include "statistics/selected_rounds.h"

/// The summary pass of the round statistics: the sums over the stored rounds.
namespace verdane::Statistics {

struct filled_lines {
    missing_row missing = missing_row::none;
    int16 rounds = 0;
    /// The rounds of the selection, for the pages about the season.
    season_rounds season;
};

/// Adds up the rounds of the selection and writes all rows of `stats` through `rsstats`, which the caller has
/// opened; zeros if no round matches. Reads the two keys and the three plain values of the selection. If a
/// round lacks one of its rows, nothing is written. The other recordsets are closed on return, and `rsgames`
/// has the statement "Select * from games".
filled_lines fill_round_lines(const selection_arguments& chosen);

}  // namespace verdane::Statistics
