#pragma once

namespace verdane {
class f_new_round;
}

/// What the round window does; both its twins come here.
namespace verdane::f_new_round_func {

/// Fills the lists, shows hole 1 and takes the round list away, so that no list of rounds ever stands
/// behind the round window.
void load(f_new_round& window);

/// Asks for the tee-off of a round that has no key yet; without one the window goes and leaves no
/// rows.
void activate(f_new_round& window);

/// Closes what the window works on. Runs to its end whatever the store says.
void unload(f_new_round& window);

/// A hole was chosen in `cmb_holes`: stores the hole that is left, then shows the other.
void hole_selected(f_new_round& window);

/// The user chose a hole in `cmb_holes`. On the detailed page that is a click on the hole's tab, so that
/// the shots are checked and summed up before they give way to those of the other hole.
void hole_chosen(f_new_round& window);

/// Asked before a click on a hole tab; false keeps the tab.
bool hole_tab_before_click(f_new_round& window);

/// A hole tab was clicked, perhaps the one that was shown already.
void hole_tab_clicked(f_new_round& window);

/// Another course was chosen: the card of the hole on screen is that course's.
void course_selected(f_new_round& window);

/// Opens the twelve amounts of the round; the total that their window shows last stays in the frame of
/// the parameters.
void show_costs(f_new_round& window);

/// Stores the hole on screen and what belongs to the round, and commits. `silent`: stores the hole
/// that is being left, and says nothing. Refuses without a date.
void save_round(f_new_round& window, bool silent);

/// OK (index 4) saves and closes, Cancel (index 2) asks.
void on_ok_cancel(f_new_round& window, int index);

/// The title bar's close box: as Cancel, but an incomplete shot is reported and does not keep the window
/// open.
void on_close_box(f_new_round& window);

/// Closes the window, asking whether to save what is not saved; with `skip_prompt` it is dropped
/// without a question.
void ask_and_close(f_new_round& window, bool skip_prompt);

}  // namespace verdane::f_new_round_func
