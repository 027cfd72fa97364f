#pragma once

#include <QStringList>

#include "records/Round_functions.h"

namespace verdane {

class hole_bar;
class quick_page;
class round_form;
class totals_pane;
struct hole_summary;
struct round_panes;

/// Between the panes of the round window and the rows of its round.
namespace f_new_round_func {

/// Shows the classes of the hole on screen for figures from the rows or from the boxes. There is something to
/// save afterwards.
void refresh_panel(round_form& window, const round_panes& panes,
                   const Round_functions::figure_source& figures);

/// Shows the totals of the round: holes 1 to 17 from the row, the last one from the boxes, which show it
/// whenever the totals are visible.
void refresh_score(const quick_page& quick, totals_pane& totals);

/// Shows a hole (1 to 18) from the rows.
void load_hole(round_form& window, const round_panes& panes, int16 hole);

/// Shows length, par and handicap index of a hole from the current row of `rsfield_info`.
void show_hole_card(hole_bar& holes, int16 hole);

/// Shows the figures that were counted from the shots of the hole on screen.
void show_summary(quick_page& quick, const hole_summary& summary);

/// Writes the boxes into the rows of a hole, and the numbers of the selected partners. Nothing is committed.
void store_hole(const quick_page& quick, const QStringList& partners, int16 hole);

/// Stores the hole on screen and what belongs to the round, and commits both. `silent`: stores the hole that
/// was shown last and shows no message. Refuses without a date. Fails with `subscript`, before the commit,
/// when the list of round keys is full.
void save_round(round_form& window, const round_panes& panes, bool silent);

}  // namespace f_new_round_func

}  // namespace verdane
