#pragma once

#include <optional>

#include "scoring/putt_counts.h"
#include "statistics/run_controls.h"
#include "statistics/selection.h"

/// Reads the putt lengths of stored rounds and counts them.
namespace verdane::Statistics {

/// The statement for every round that matches the three clauses (`clause_form::alone`), in time order; it
/// contains no dates.
QString putt_select(const selection_arguments& chosen);

/// The putts of the round on the current row of `rsgames2`. Fails with `subscript` on a hole with six putts.
putt_counts putts_of_current_round();

struct gathered_putts {
    putt_counts counts;
    /// All rounds read, also those without putt lengths.
    int16 rounds = 0;
};

/// Reads the rounds of the selection through `rsgames2`, which must be closed and is closed again. Absent if
/// no round is in the range.
///
/// The walk begins at the round of `from_key`, or the first one after it, and ends with the round of
/// `to_key`. If the clauses exclude that round, it continues to the last round that matches them. A reversed
/// range has no round.
std::optional<gathered_putts> gather_putts(const selection_arguments& chosen, run_progress& bar);

}  // namespace verdane::Statistics
