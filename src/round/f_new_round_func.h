#pragma once

namespace verdane {
class round_form;
struct round_panes;
}  // namespace verdane

/// The life cycle of the round window, for both twins. The window passes its panes to the routines.
/// `hole_navigation.h` has the other routines of this namespace.
namespace verdane::f_new_round_func {

/// Sizes the window, fills the lists, shows hole 1 and closes the round list, so that it is never open below
/// the round window.
void load(round_form& window, const round_panes& panes);

/// Opens the tee-off dialog for a round without a key; a round that still has none closes its window and
/// leaves no rows. Focuses the page otherwise.
void activate(round_form& window, const round_panes& panes);

/// Closes the recordsets of the round. A failure of one step does not prevent the others.
void unload(const round_panes& panes);

/// Opens the window of the costs. The total that it showed last stays on screen.
void show_costs(const round_panes& panes);

/// Prints the putts of the round. On the detailed page the hole on screen is summarised first, so that its
/// putts are included.
void report_putts(round_form& window, const round_panes& panes);

/// OK (index 4) saves and closes, Cancel (index 2) closes after the question whether to save.
void on_ok_cancel(round_form& window, const round_panes& panes, int index);

/// The title bar's close box: like Cancel, but an incomplete shot is reported and does not keep the window
/// open.
void on_close_box(round_form& window, const round_panes& panes);

/// Closes the window. If there is something to save, shows the question whether to save first; with
/// `skip_prompt` the changes are dropped without a question.
void ask_and_close(round_form& window, const round_panes& panes, bool skip_prompt);

}  // namespace verdane::f_new_round_func
