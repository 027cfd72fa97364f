#pragma once

#include <QString>

#include <vector>

#include "base/counts.h"
#include "controls/control_array.h"
#include "controls/Form.h"
#include "reports/report_control.h"
#include "round/detailed_page.h"
#include "round/page_bar.h"
#include "round/round_lists.h"
#include "round/round_panes.h"

class QBoxLayout;
class QLayout;
class QPushButton;

namespace verdane {

class f_get_date;
struct round_header;

/// The window in which a round is created, reopened, entered and saved; in English `f_new_round_en`. It
/// arranges the panes and connects their events with the routines of `f_new_round_func`.
///
/// An open round has no copy in memory: its rows are the current rows of `rsgames`, `rsgames2` and `rscost`,
/// and the boxes show one hole. Their figures are written when the hole is left or the round is saved.
/// `round_opening.h` opens the window on a new or a stored round. The constructor loads it; `rsgames`,
/// `rsgames2`, `rscost`, `rsvrd_fields` and `rsfield_info` are open before, and are closed with it.
class f_new_round : public Form {
public:
    /// Indexes of the buttons OK and Cancel.
    static constexpr int ok = 4;
    static constexpr int cancel = 2;

    /// `shots` must outlive the window.
    explicit f_new_round(shot_rows& shots);

    /// The key of the round; empty before the tee-off.
    const QString& date_value() const { return date_value_; }
    void set_date_value(const QString& key) { date_value_ = key; }

    /// Shows the tee-off dialog and returns when it is closed. Closing it activates the window, which does
    /// not open it again.
    void choose_date(f_get_date& dialog);
    /// The tee-off dialog was cancelled.
    bool get_date_canceled() const { return get_date_canceled_; }

    /// No hole was shown yet: showing the first one must not save.
    bool first_entry() const { return first_entry_; }
    /// List index (0 to 17) of the hole that was shown last, which is saved when another one is selected.
    int16 last_hole() const { return last_hole_; }
    /// A hole (1 to 18) is shown: `last_hole` is its index, and `first_entry` is false.
    void hole_is_shown(int16 hole);

    /// There is something to save. True at first, so that closing an unchanged round shows the question, too.
    bool needSave() const { return needSave_; }
    void mark_changed() { needSave_ = true; }
    void mark_saved() { needSave_ = false; }

    /// The window was to be closed from the detailed page: only the quick page can be shown from then on.
    bool closingoK() const { return closingoK_; }
    void allow_quick_page_only() { closingoK_ = true; }

    /// The report on the putts of the round.
    report_control& cr2() { return cr2_; }

    /// Fills the list of courses. No course is selected.
    void fill_courses(const std::vector<course_line>& courses);
    /// Selects a course, which moves the recordsets of the courses to it.
    void select_course(int list_index);
    /// Shows a hole of a stored round and its course. `course_code` is the code of the course.
    void show_stored_hole(int16 hole, const QString& course_code);
    /// The number of the hole whose figures are in the boxes, which is kept in a hidden box.
    void set_hole_in_boxes(int16 hole);
    /// Shows what is stored for the round as a whole.
    void show_header(const round_header& header);
    /// Disables the button that chooses the date.
    void lock_date();

    /// Shows the panes of a page and hides those of the other one.
    void show_page(round_page page);
    /// The tab of the detailed page is selected.
    bool on_detailed_page() const;

    /// `f_new_round_func::save_round` and `ask_and_close`.
    void save_round(bool silent);
    void ask_and_close(bool skip_prompt);

    /// The routines of shot-by-shot entry; `detailed_page` describes them.
    bool isdetailed() const;
    bool PUT_MODE() const;
    bool open_hole_shots();
    bool check_shots();
    blank_shot drop_blank_shot();
    /// Commits all shots that are not committed yet.
    void saveShots();

protected:
    void activated() override;
    void unloading() override;
    void close_requested() override;

private:
    void lay_out();
    QLayout* make_panes();
    QLayout* make_bottom();
    void order_for_tab_key();
    void connect_panes();
    void connect_window();

    QString date_value_;
    bool get_date_canceled_ = false;
    bool choosing_date_ = false;
    bool first_entry_ = true;
    int16 last_hole_ = 0;
    bool needSave_ = true;
    bool closingoK_ = false;
    report_control cr2_{this};

    round_panes panes_;
    /// OK and Cancel.
    control_array<QPushButton> end_buttons_{u"Command1"};
    /// The panes of both pages: side by side on the quick page, below each other on the detailed page.
    QBoxLayout* pane_layout_ = nullptr;
};

}  // namespace verdane
