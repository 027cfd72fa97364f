#pragma once

#include "records/Round_functions.h"

namespace verdane {

class detailed_page;
class hole_bar;
class page_bar;
class parameters_pane;
class quick_page;
class round_form;
class shot_rows;
class statistics_pane;
class totals_pane;
struct hole_summary;
struct round_panes;

/// Entering a round: changes of the hole on screen and of the page, and the figures between the current rows
/// and the panes.
class round_entry {
public:
    /// The arguments must outlive the object.
    round_entry(round_form& window, const round_panes& panes);

    /// A hole was selected in the list: saves the hole on screen (the first call saves nothing), then shows
    /// the selected hole.
    void hole_selected();
    /// The list of holes changed. On the detailed page this is a click on the tab of the hole, so that the
    /// shots are checked and summarised first.
    void hole_list_changed();
    /// Runs before a click on a hole tab is accepted; false keeps the selected tab. Also the last step before
    /// the window closes by OK.
    bool hole_tab_before_click();
    /// A hole tab was clicked, also that of the hole on screen.
    void hole_tab_clicked();

    /// True when the tab of the detailed page is selected.
    bool on_detailed_page() const;
    /// A page tab was clicked: shows its page. After `return_to_quick_page` only the quick page is shown.
    void page_changed();
    /// `Command4`: opens the shots of the hole on the detailed page.
    void open_shots_of_hole();
    /// The shots were checked because the window is to be closed: leaves the detailed page permanently.
    void return_to_quick_page();

    /// Another course was selected: shows its card of the hole on screen.
    void course_selected();
    /// Shows the classes of the hole on screen for the figures in the boxes. There is something to save
    /// afterwards.
    void refresh_panel_from_boxes();
    /// Shows the totals of the round: holes 1 to 17 from the row, the last one from the boxes, which show it
    /// whenever the totals are visible.
    void refresh_score();
    /// Shows the counts of the shots of the hole on screen.
    void show_summary(const hole_summary& summary);

    /// There is something to save. True at first, so that closing an unchanged round shows the question, too.
    bool needSave() const { return needSave_; }
    /// Writes the boxes into the rows of the hole on screen, stores what belongs to the round, and commits
    /// both. `silent`: shows no message. Refuses without a date. Fails with `subscript`, before the commit,
    /// when the list of round keys is full.
    void save_round(bool silent);
    /// Warns next to the page tabs when few saves are left (`places_left.h`).
    void show_places_left() const;

private:
    /// Shows the hole on screen from the rows.
    void load_hole();
    void show_hole_card();
    bool may_leave_shots();
    void leave_detailed_page();
    void show_quick_page();
    void show_detailed_page();
    void refresh_panel(const Round_functions::figure_source& figures);
    void store_hole();

    round_form& window_;
    hole_bar& holes_;
    page_bar& pages_;
    quick_page& quick_;
    statistics_pane& statistics_;
    detailed_page& detailed_;
    parameters_pane& parameters_;
    totals_pane& totals_;
    shot_rows& shots_;

    bool needSave_ = true;
    /// The window was to be closed from the detailed page: only the quick page can be shown from then on.
    bool closingoK_ = false;
};

/// Enables the commands of the main window that must not act on the window while a row of the grid is open.
void enable_save_and_close(bool enabled);

}  // namespace verdane
