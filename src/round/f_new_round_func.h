#pragma once

namespace verdane {

class detailed_page;
class hole_bar;
class parameters_pane;
class quick_page;
class round_entry;
class round_form;
class shot_rows;
class totals_pane;
struct round_panes;
struct tee_off_moment;

/// Opening and closing of the round window, in both languages.
class f_new_round_func {
public:
    /// The arguments must outlive the object.
    f_new_round_func(round_form& window, const round_panes& panes, round_entry& entry);

    /// True when the tee-off dialog was cancelled.
    bool get_date_canceled() const { return get_date_canceled_; }

    /// Sizes the window, fills the lists, shows hole 1 and closes the round list, so that it is never open
    /// below the round window.
    void load();
    /// Opens the tee-off dialog for a round without a key. If it has none afterwards, closes the window and
    /// stores no rows. Otherwise focuses the page. Closing the dialog activates the window again; this does
    /// not open the dialog a second time.
    void activate();
    /// Closes the recordsets of the round. A failure of one step does not prevent the others.
    void unload();

    /// Opens the window of the costs. The total that it showed last stays on screen.
    void show_costs();
    /// Prints the putts of the round. On the detailed page the hole on screen is summarised first, so that
    /// its putts are included.
    void report_putts();

    /// OK (index 4) saves and closes, Cancel (index 2) closes after the question whether to save.
    void on_ok_cancel(int index);
    /// The title bar's close box: like Cancel, but an incomplete shot is reported and does not keep the
    /// window open.
    void on_close_box();
    /// Closes the window. If there is something to save, shows the question whether to save first; with
    /// `skip_prompt` the changes are dropped without a question.
    void ask_and_close(bool skip_prompt);

private:
    void size_and_place();
    void open_tee_off_dialog();
    void take_moment(const tee_off_moment& moment);
    void save_and_leave();

    round_form& window_;
    hole_bar& holes_;
    quick_page& quick_;
    detailed_page& detailed_;
    parameters_pane& parameters_;
    totals_pane& totals_;
    shot_rows& shots_;
    round_entry& entry_;
    bool get_date_canceled_ = false;
    bool choosing_date_ = false;
};

}  // namespace verdane
