#pragma once

#include <QString>

#include "base/counts.h"
#include "controls/shown_subject.h"
#include "round/detailed_page.h"
#include "round/f_new_round_func.h"
#include "round/round_entry.h"
#include "round/round_form.h"

namespace verdane {

struct round_header;

/// The window in which a round is created, reopened, entered and saved; in English `f_new_round_en`. It
/// connects the events of its panes with the classes that handle them.
///
/// An open round has no copy in memory: its rows are the current rows of `rsgames`, `rsgames2` and `rscost`,
/// and the boxes show one hole. Their figures are written when the hole is left or the round is saved.
/// The constructor loads the round; `rsgames`, `rsgames2`, `rscost`, `rsvrd_fields` and `rsfield_info` are
/// open before, and are closed with the window. The list of rounds is closed, too.
class f_new_round : public round_form, public shows_subject {
public:
    /// `shots` must outlive the window.
    explicit f_new_round(shot_rows& shots);

    /// Shows a new round: fills the list of courses and selects the first one.
    void show_new_round();
    /// Shows a stored round and its first hole. If the round has no row in `games2`, shows a message and
    /// closes the window.
    void show_stored_round(const QString& key);
    /// Shows what is stored for the round as a whole.
    void show_header(const round_header& header);

    /// The tee-off dialog was cancelled.
    bool get_date_canceled() const { return life_cycle_.get_date_canceled(); }
    /// There is something to save.
    bool needSave() const { return entry_.needSave(); }
    /// List index (0 to 17) of the hole that was shown last.
    int16 last_hole() const;

    /// `round_entry` and `f_new_round_func` describe them.
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

    /// The round and the hole on screen.
    failure_subject shown_subject() const override;

protected:
    void activated() override;
    void unloading() override;
    void close_requested() override;

private:
    void connect_holes();
    void connect_figures();
    void connect_window();

    round_entry entry_;
    f_new_round_func life_cycle_;
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
