#pragma once

/// Writes the report table `r_card`, which has one row for each nine holes.
namespace verdane::card_table {

/// Writes both rows for the course on the current rows of `rsvrd_fields` and `rsfield_info`, with the
/// averages of the clubs from the last row of `sticks`, and commits them. `rsr_card` and `rssticks` must be
/// closed and are closed again. Fails with `misuse` if `rsfield_info` has no current row.
void write_current_course();

}  // namespace verdane::card_table
