#pragma once

#include "store/Recordset.h"

/// The rows of a course in the two tables that hold it: `rsvrd_fields` and `rsfield_info`. The caller
/// has opened them.
namespace verdane::Round_functions {

/// Puts `rsvrd_fields` on the row at that place, from 0. A list that was filled in row order finds its
/// entry's row this way; a place beyond the last row leaves the table at its end.
void move_to_course(int list_index);

/// Puts `rsfield_info` on the holes of the course on the current row of `rsvrd_fields`, and at its end
/// where there are none.
void find_holes_of_course(search_direction direction = search_direction::forward);

}  // namespace verdane::Round_functions
