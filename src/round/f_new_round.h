#pragma once

#include <QString>

#include <vector>

#include "base/counts.h"
#include "round/detailed_page.h"
#include "round/round_form.h"
#include "round/round_record.h"

namespace verdane {

/// The window in which a round is created, reopened, entered and saved; in English `f_new_round_en`. It
/// connects the events of its panes with the routines of `f_new_round_func`.
///
/// An open round has no copy in memory: its rows are the current rows of `rsgames`, `rsgames2` and `rscost`,
/// and the boxes show one hole. Their figures are written when the hole is left or the round is saved.
/// The constructor loads the round; `rsgames`, `rsgames2`, `rscost`, `rsvrd_fields` and `rsfield_info` are
/// open before, and are closed with the window. The list of rounds is closed, too.
class f_new_round : public round_form {
public:
    /// `shots` must outlive the window.
    explicit f_new_round(shot_rows& shots);

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
    void connect_panes();
    void connect_window();
};

/// The command for a new round. Shows a message when there is no course.
void start_new_round();

/// Adds the rows of a new round, without a key and not committed, and opens the window on them. `rsgames` and
/// `rsfield_info` are open, and there is a course.
void prepare_round_window();

/// Opens the window on a stored round and returns when it is closed. `rsgames` and `rsfield_info` are open. A
/// round without a row of `cost` gets one, which the window commits.
void open_stored_round(const QString& key);

/// Shows what is stored for the round as a whole: weather, temperature, date, time and costs. A round without
/// a row of `cost` gets one.
void load_round_header(f_new_round& window);

}  // namespace verdane
