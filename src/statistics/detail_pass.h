#pragma once

#include <QString>

#include "statistics/selection_arguments.h"

namespace verdane::Statistics {

/// The statement of the detail pass: one row for each hole that has shots in the selection, with
/// eleven columns: fairway shots other than putts, sand shots, missed shots, the penalties (water,
/// lost ball, rules, out of bounds), par, shots, penalty strokes, hole.
QString detail_select(const selection_arguments& chosen);

/// Opens `rsStat_rounds` on that statement. False when the selection holds no detailed round.
bool open_detail(const selection_arguments& chosen);

/// Closes it and resets its source to the whole table.
void close_detail();

}  // namespace verdane::Statistics
