#pragma once

#include <vector>

#include "round/list_lines.h"

/// Reads the lists of the round window from the store.
namespace verdane::round_lists {

/// One line for each row of `rsvrd_fields`, in the order of the rows. The recordset is at its end afterwards.
std::vector<course_line> course_lines();
/// Opens `rspartners` and returns one line for each row, in the order of the rows.
std::vector<partner_line> open_partner_lines();

}  // namespace verdane::round_lists
