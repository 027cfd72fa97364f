#pragma once

namespace verdane {

class f_new_round;

/// What the round window works out for the hole and the round on screen.

/// Writes the twenty-four classes of the hole shown into the statistics; the hole's figures come from
/// the rows or from the boxes. Marks the round as unsaved.
void refresh_panel(f_new_round& window, bool from_row);

/// Shows the totals of the round: holes 1 to 17 from the row, the last from the boxes, which hold it
/// whenever the totals are in sight.
void refresh_score(f_new_round& window);

/// Shows long shots, approach shots and putts added.
void sum_stroke_boxes(f_new_round& window);

/// Shows the four penalties added.
void sum_penalty_boxes(f_new_round& window);

}  // namespace verdane
