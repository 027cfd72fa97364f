#pragma once

namespace verdane {

class detailed_page;
class hole_bar;
class page_bar;
class quick_page;
class round_boxes;
class round_form;
class shot_rows;
class totals_pane;
struct round_panes;

/// Changes of the hole on screen and of the page.
class hole_navigation {
public:
    /// The arguments must outlive the object.
    hole_navigation(round_form& window, const round_panes& panes, round_boxes& boxes);

    /// True when the tab of the detailed page is selected.
    bool on_detailed_page() const;

    /// A hole was selected in the list: saves the hole on screen (the first call saves nothing), then shows
    /// the selected hole.
    void hole_selected();
    /// The list of holes changed. On the detailed page this is a click on the tab of the hole, so that the
    /// shots are checked and summarised first.
    void hole_chosen();
    /// Runs before a click on a hole tab is accepted; false keeps the selected tab. Also the last step before
    /// the window closes by OK.
    bool hole_tab_before_click();
    /// A hole tab was clicked, also that of the hole on screen.
    void hole_tab_clicked();

    /// A page tab was clicked: shows its page. After `return_to_quick_page` only the quick page is shown.
    void page_changed();
    /// `Command4`: opens the shots of the hole on the detailed page.
    void open_shots_of_hole();
    /// The shots were checked because the window is to be closed: leaves the detailed page permanently.
    void return_to_quick_page();

private:
    bool may_leave_shots();
    void leave_detailed_page();
    void show_quick_page();
    void show_detailed_page();

    round_form& window_;
    hole_bar& holes_;
    page_bar& pages_;
    quick_page& quick_;
    detailed_page& detailed_;
    totals_pane& totals_;
    shot_rows& shots_;
    round_boxes& boxes_;

    /// The window was to be closed from the detailed page: only the quick page can be shown from then on.
    bool closingoK_ = false;
};

/// Enables the commands of the main window that must not act on the window while a row of the grid is open.
void enable_save_and_close(bool enabled);

}  // namespace verdane
