#pragma once

#include <functional>
#include <vector>

#include "base/counts.h"
#include "statistics/selection.h"

/// The stored rounds of a selection, one after the other, each with its rows of the other tables.
namespace verdane {

/// The row that a stored round lacks, by the number in its message.
enum class missing_row { none = 0, course = 1, holes = 2, games2 = 3 };

/// The statement for the rounds between two keys, on one course if its code has more than one character.
/// Weather and partner are in another table and are tested for each round.
QString selected_rounds_statement(const selection_arguments& chosen);

/// Opens `rsgames2` for `walk_selected_rounds`, with the columns that select a round and those in `further`.
void open_situations(const std::vector<int>& further = {});

/// Walks `rsgames` from its first row to its end. For each round `rsvrd_fields`, `rsfield_info` and
/// `rsgames2` are moved to its rows, and `take` is called if the round matches the chosen weather and
/// partner. A round whose weather is Null matches only if no weather was chosen. A round that lacks a row
/// ends the walk, and that row is returned. A failure of `take` names the round. The caller has opened the
/// four recordsets.
missing_row walk_selected_rounds(const selection_arguments& chosen, const std::function<void()>& take);

/// Shows the critical box for a missing row, which has the same text in both languages.
void report_missing_row(missing_row row);

}  // namespace verdane
