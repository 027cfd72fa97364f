#pragma once

#include "records/Round_functions.h"

namespace verdane {

class hole_bar;
class parameters_pane;
class quick_page;
class round_form;
class statistics_pane;
class totals_pane;
struct hole_summary;
struct round_panes;

/// The figures in the panes: shows those of the current rows, computes classes and totals from the boxes, and
/// stores the boxes in the rows.
class round_boxes {
public:
    /// The arguments must outlive the object.
    round_boxes(const round_form& window, const round_panes& panes);

    /// There is something to save. True at first, so that closing an unchanged round shows the question, too.
    bool needSave() const { return needSave_; }

    /// Shows the hole on screen from the rows.
    void load_hole();

    /// Another course was selected: shows its card of the hole on screen.
    void course_selected();

    /// Shows the classes of the hole on screen for figures from the rows or from the boxes. There is
    /// something to save afterwards.
    void refresh_panel(const Round_functions::figure_source& figures);
    /// The same for the figures in the boxes.
    void refresh_panel_from_boxes();

    /// Shows the totals of the round: holes 1 to 17 from the row, the last one from the boxes, which show it
    /// whenever the totals are visible.
    void refresh_score();

    /// Shows the counts of the shots of the hole on screen.
    void show_summary(const hole_summary& summary);

    /// Writes the boxes into the rows of the hole on screen, stores what belongs to the round, and commits
    /// both. `silent`: shows no message. Refuses without a date. Fails with `subscript`, before the commit,
    /// when the list of round keys is full.
    void save_round(bool silent);

private:
    void show_hole_card();
    void store_hole();

    const round_form& window_;
    hole_bar& holes_;
    quick_page& quick_;
    statistics_pane& statistics_;
    totals_pane& totals_;
    parameters_pane& parameters_;
    bool needSave_ = true;
};

}  // namespace verdane
