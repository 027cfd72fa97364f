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
}  // namespace verdane

/// The hole on screen: changing it, its course or the page, showing its rows in the panes and storing the
/// boxes in its rows.
namespace verdane::f_new_round_func {

/// A hole was selected in the list: saves the hole that was shown last, unless it is the first one, then
/// shows the selected hole.
void hole_selected(round_form& window, const round_panes& panes);

/// The list of holes changed. On the detailed page this is a click on the tab of the hole, so that the shots
/// are checked and summarised first.
void hole_chosen(round_form& window, const round_panes& panes);

/// Runs before a click on a hole tab is accepted; false keeps the selected tab. Also the last step before the
/// window closes by OK.
bool hole_tab_before_click(round_form& window, const round_panes& panes);

/// A hole tab was clicked, also that of the hole on screen.
void hole_tab_clicked(round_form& window, const round_panes& panes);

/// Another course was selected: shows its card of the hole on screen.
void course_selected(round_form& window, const round_panes& panes);

/// A page tab was clicked, or the window is to be closed from the detailed page. As soon as `closingoK` is
/// true, only the quick page is shown.
void page_changed(round_form& window, const round_panes& panes);

/// `Command4`: opens the shots of the hole on the detailed page.
void open_shots_of_hole(round_form& window, const round_panes& panes);

/// Enables the commands of the main window that must not act on the window while a row of the grid is open.
void enable_save_and_close(bool enabled);

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

}  // namespace verdane::f_new_round_func
