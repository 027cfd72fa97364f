#pragma once

#include <QString>

#include <vector>

#include "scoring/round_lines.h"
#include "statistics/selection.h"

/// The detail pass of the round statistics: the figures of each hole, counted from its shots by the store.
namespace verdane::Statistics {

/// The statement of the pass: one row for each hole that has shots in the selection, with the members of
/// `detailed_hole` in their order and then the hole.
QString detail_select(const selection_arguments& chosen);

/// Reads the rows of that statement through `rsStat_rounds`, which must be closed and is closed again. Empty
/// if no round of the selection has shots.
std::vector<detailed_hole> gather_detail(const selection_arguments& chosen);

/// Writes the figures of each hole to rows 1 to 9 of `stats`. The table is open on row 1, also on return.
/// Fails with `subscript` on a hole that is not 1 to 18.
void write_detail(const std::vector<detailed_hole>& holes);

}  // namespace verdane::Statistics
