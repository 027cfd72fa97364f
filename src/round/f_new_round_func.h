#pragma once

namespace verdane {
class f_new_round;
}

/// The life cycle of the round window, for both twins. `hole_navigation.h` and `load_and_save.h` have the
/// other routines of this namespace.
namespace verdane::f_new_round_func {

/// Sizes the window, fills the lists, shows hole 1 and closes the round list, so that it is never open below
/// the round window.
void load(f_new_round& window);

/// Opens the tee-off dialog for a round without a key; a round that still has none closes its window and
/// leaves no rows. Focuses the page otherwise.
void activate(f_new_round& window);

/// Closes the recordsets of the round. A failure of one step does not prevent the others.
void unload(f_new_round& window);

/// Opens the twelve amounts of the round. The total that their window showed last stays on screen.
void show_costs(f_new_round& window);

/// Prints the putts of the round. On the detailed page the hole on screen is summarised first, so that its
/// putts are included.
void report_putts(f_new_round& window);

/// OK (index 4) saves and closes, Cancel (index 2) closes after the question whether to save.
void on_ok_cancel(f_new_round& window, int index);

/// The title bar's close box: like Cancel, but an incomplete shot is reported and does not keep the window
/// open.
void on_close_box(f_new_round& window);

/// Closes the window. If there is something to save, shows the question whether to save first; with
/// `skip_prompt` the changes are dropped without a question.
void ask_and_close(f_new_round& window, bool skip_prompt);

}  // namespace verdane::f_new_round_func
