#pragma once

namespace verdane {
class round_form;
struct round_panes;
}  // namespace verdane

/// From hole to hole, from course to course, and from page to page.
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

}  // namespace verdane::f_new_round_func
