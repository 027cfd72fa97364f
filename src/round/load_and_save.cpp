#include "round/load_and_save.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "round/hole_bar.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "scoring/hole_summary.h"
#include "scoring/words.h"

namespace verdane::f_new_round_func {

using namespace Qt::StringLiterals;

namespace {

quick_figures figures_from_rows(int16 hole)
{
    const Round_functions::strokes strokes = Round_functions::read_strokes(hole);
    const Round_functions::penalties penalties = Round_functions::read_penalties(hole);
    const Round_functions::situation situation = Round_functions::read_situation(hole);
    quick_figures figures;
    figures.long_shots = strokes.long_shots;
    figures.approach = strokes.approach;
    figures.putts = strokes.putts;
    figures.fairway = situation.fairway;
    figures.sand = situation.sand;
    figures.missed = situation.missed;
    figures.recovery = Round_functions::read_recovery(hole);
    figures.pen_water = penalties.water;
    figures.pen_lost = penalties.lost;
    figures.pen_rule = penalties.rule;
    figures.pen_bounds = penalties.bounds;
    return figures;
}

quick_figures figures_from_shots(const hole_summary& summary)
{
    quick_figures figures;
    figures.long_shots = summary.kinds[long_shot].sum;
    figures.approach = summary.kinds[approach_shot].sum;
    figures.putts = summary.kinds[putt].sum;
    figures.fairway = summary.fairway;
    figures.sand = summary.sand;
    figures.missed = summary.missed;
    figures.recovery = summary.recovery;
    figures.pen_water = summary.penalties[water_hazard].sum;
    figures.pen_lost = summary.penalties[lost_ball].sum;
    figures.pen_rule = summary.penalties[against_the_rules].sum;
    figures.pen_bounds = summary.penalties[out_of_bounds].sum;
    return figures;
}

/// When a hole is left, the list already has the next one selected.
int16 hole_to_save(const round_form& window, const hole_bar& holes, bool silent)
{
    if (silent)
        return window.last_hole() + 1;
    return holes.hole_in_boxes();
}

}  // namespace

void refresh_panel(round_form& window, const round_panes& panes,
                   const Round_functions::figure_source& figures)
{
    window.mark_changed();
    const int16 hole = panes.holes.listed_hole();
    panes.statistics.show_hole(Round_functions::figures_of(hole, figures), Round_functions::hole_par(hole));
}

void refresh_score(const quick_page& quick, totals_pane& totals)
{
    totals.show_round(Round_functions::labels_of(Round_functions::round_score(quick.figures())));
}

void load_hole(round_form& window, const round_panes& panes, int16 hole)
{
    panes.quick.show_stored(figures_from_rows(hole));
    show_hole_card(panes.holes, hole);
    panes.holes.set_hole_in_boxes(hole);
    refresh_panel(window, panes, Round_functions::from_row);
}

void show_hole_card(hole_bar& holes, int16 hole)
{
    holes.show_card(Round_functions::read_hole_card(hole));
}

void show_summary(quick_page& quick, const hole_summary& summary)
{
    quick.show_counted(figures_from_shots(summary));
}

void store_hole(const quick_page& quick, const QStringList& partners, int16 hole)
{
    const hole_figures f = quick.figures();
    Round_functions::store_strokes(hole, {f.long_shots, f.approach, f.putts});
    Round_functions::store_penalties(hole, {f.pen_rule, f.pen_water, f.pen_bounds, f.pen_lost});
    round_record::store_partners(partners);
    Round_functions::store_situation(hole, quick.situation());
}

void save_round(round_form& window, const round_panes& panes, bool silent)
{
    if (panes.holes.date().isEmpty()) {
        show_information(window.caption(u"Veuillez d'abord choisir la date de la ronde.",
                                        u"Please select a round's date first."),
                         QMessageBox::Critical);
        return;
    }
    const parameters_pane& parameters = panes.parameters;
    store_hole(panes.quick, parameters.selected_partners(), hole_to_save(window, panes.holes, silent));
    round_record::store_and_commit(
        window.date_value(),
        {parameters.course_index(), parameters.weather_index(), parameters.temperature()});
    window.mark_saved();
    if (!silent)
        show_information(window.caption(u"Les modifications sont enregistrées", u"Changes have been saved"));
}

}  // namespace verdane::f_new_round_func
