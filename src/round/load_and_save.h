#pragma once

#include "records/Round_functions.h"

namespace verdane {

class f_new_round;
struct hole_summary;

/// Between the panes of the round window and the rows of its round.
namespace f_new_round_func {

/// Shows the classes of the hole on screen for figures from the rows or from the boxes. There is something to
/// save afterwards.
void refresh_panel(f_new_round& window, const Round_functions::figure_source& figures);

/// Shows the totals of the round: holes 1 to 17 from the row, the last one from the boxes, which show it
/// whenever the totals are visible.
void refresh_score(f_new_round& window);

/// Shows a hole (1 to 18) from the rows.
void load_hole(f_new_round& window, int16 hole);

/// Shows length, par and handicap index of a hole from the current row of `rsfield_info`.
void show_hole_card(f_new_round& window, int16 hole);

/// Shows the figures that were counted from the shots of the hole on screen.
void show_summary(f_new_round& window, const hole_summary& summary);

/// Writes the boxes into the rows of a hole, and the selected partners. Nothing is committed.
void store_hole(f_new_round& window, int16 hole);

/// Stores the hole on screen and what belongs to the round, and commits both. `silent`: stores the hole that
/// was shown last and shows no message. Refuses without a date. Fails with `subscript`, before the commit,
/// when the list of round keys is full.
void save_round(f_new_round& window, bool silent);

}  // namespace f_new_round_func

}  // namespace verdane
