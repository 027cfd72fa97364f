#include "round/round_boxes.h"

#include "controls/boxes.h"
#include "records/round_rows.h"
#include "round/hole_bar.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "scoring/hole_summary.h"

namespace verdane {

round_boxes::round_boxes(const round_form& window, const round_panes& panes)
    : window_(window),
      holes_(panes.holes),
      quick_(panes.quick),
      statistics_(panes.statistics),
      totals_(panes.totals),
      parameters_(panes.parameters)
{
}

void round_boxes::load_hole()
{
    quick_.show_stored(Round_functions::read_hole(holes_.hole()));
    show_hole_card();
    refresh_panel(Round_functions::from_row);
}

/// From the current row of `rsfield_info`.
void round_boxes::show_hole_card()
{
    holes_.show_card(Round_functions::read_hole_card(holes_.hole()));
}

void round_boxes::course_selected()
{
    round_record::move_to_course_and_holes(parameters_.course_index());
    show_hole_card();
    refresh_panel_from_boxes();
}

void round_boxes::refresh_panel(const Round_functions::figure_source& figures)
{
    needSave_ = true;
    const int16 hole = holes_.hole();
    statistics_.show_hole(Round_functions::figures_from_source(hole, figures),
                          Round_functions::hole_par(hole));
}

void round_boxes::refresh_panel_from_boxes()
{
    refresh_panel(quick_.figures());
}

void round_boxes::refresh_score()
{
    totals_.show_round(Round_functions::labels_of(Round_functions::round_score(quick_.figures())));
}

void round_boxes::show_summary(const hole_summary& summary)
{
    quick_.show_counted(summary.counts);
}

void round_boxes::store_hole()
{
    const int16 hole = holes_.hole();
    const hole_figures figures = quick_.figures();
    Round_functions::store_strokes(hole, figures);
    Round_functions::store_penalties(hole, figures);
    round_record::store_partners(parameters_.selected_partners());
    Round_functions::store_situation(hole, quick_.situation());
}

void round_boxes::save_round(bool silent)
{
    if (holes_.date().isEmpty()) {
        show_information(window_.caption(u"Veuillez d'abord choisir la date de la ronde.",
                                         u"Please select a round's date first."),
                         QMessageBox::Critical);
        return;
    }
    store_hole();
    round_record::store_and_commit(
        window_.date_value(),
        {parameters_.course_index(), parameters_.weather_index(), parameters_.temperature()});
    needSave_ = false;
    if (!silent)
        show_information(window_.caption(u"Les modifications sont enregistrées", u"Changes have been saved"));
}

}  // namespace verdane
