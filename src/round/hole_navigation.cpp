#include "round/hole_navigation.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/main_frame.h"
#include "records/round_rows.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "scoring/hole_summary.h"
#include "scoring/limits.h"

namespace verdane::f_new_round_func {

using namespace Qt::StringLiterals;

namespace {

/// Shows the listed hole in the tabs and as the number, and what is visible on the last hole only.
void show_listed_hole(const round_panes& panes)
{
    const int hole = plain(panes.holes.listed_hole());
    panes.holes.show_hole(hole);
    panes.totals.setVisible(hole == hole_count);
    panes.detailed.show_finish_button(hole == hole_count);
}

/// Checks twice and uses only the second result, that of `drop_blank_shot`. A blank first shot is reported
/// and removed, and the hole changes. An incomplete later shot is reported twice.
bool may_leave_shots(detailed_page& shots)
{
    if (!shots.finish_typing())
        return false;
    shots.check_shots();
    shots.summarise_hole();
    return shots.drop_blank_shot().shots_complete.value_or(true);
}

void show_quick_page(round_form& window, const round_panes& panes)
{
    if (!panes.detailed.drop_blank_shot().removed)
        panes.detailed.summarise_hole();
    window.show_page(round_page::quick);
    // When the window is to be closed, the tab of the other page is still selected.
    panes.pages.select(round_page::quick);
    panes.holes.select_in_list(panes.holes.selected_tab());
    enable_save_and_close(true);
    panes.quick.focus_first_box();
}

void leave_detailed_page(round_form& window, const round_panes& panes)
{
    if (panes.detailed.isHidden())
        panes.pages.select(round_page::quick);
    else
        show_quick_page(window, panes);
}

void show_detailed_page(round_form& window, const round_panes& panes)
{
    panes.shots.commit();
    window.show_page(round_page::detailed);
    if (window.date_value().isEmpty()) {
        show_information(u"Il faut choisir la date du ronde avant d'entrer les détails"_s,
                         QMessageBox::Critical);
        return;
    }
    panes.detailed.open_hole_shots();
    enable_save_and_close(false);
    panes.detailed.enter();
    Lock_menu();
    panes.detailed.focus_club();
}

/// When a hole is left, the list already has the next one selected.
int16 hole_to_save(const round_form& window, const hole_bar& holes, bool silent)
{
    if (silent)
        return window.last_hole() + 1;
    return holes.hole_in_boxes();
}

}  // namespace

void hole_selected(round_form& window, const round_panes& panes)
{
    if (!window.first_entry())
        save_round(window, panes, true);
    const int16 hole = panes.holes.listed_hole();
    load_hole(window, panes, hole);
    window.hole_is_shown(hole);
    show_listed_hole(panes);
    refresh_score(panes.quick, panes.totals);
}

void hole_chosen(round_form& window, const round_panes& panes)
{
    const int chosen = plain(panes.holes.listed_hole());
    const int shown = plain(window.last_hole()) + 1;
    if (!window.on_detailed_page() || chosen == shown) {
        hole_selected(window, panes);
        return;
    }
    panes.holes.select_in_list_silently(shown);
    panes.holes.click_tab(chosen);
}

bool hole_tab_before_click(round_form& window, const round_panes& panes)
{
    if (window.on_detailed_page())
        return may_leave_shots(panes.detailed);
    panes.quick.focus_first_box();
    return true;
}

void hole_tab_clicked(round_form& window, const round_panes& panes)
{
    // Without an event of the list: a click on the tab of the hole on screen, which does not change the list,
    // saves the boxes, too.
    panes.holes.select_in_list_silently(panes.holes.selected_tab());
    hole_selected(window, panes);
    if (!window.on_detailed_page())
        panes.quick.focus_first_box();
    else if (panes.detailed.open_hole_shots())
        panes.detailed.focus_club();
    panes.quick.select_first_box();
}

void course_selected(round_form& window, const round_panes& panes)
{
    round_record::find_holes_of_course(Round_functions::course_code_at(panes.parameters.course_index()));
    show_hole_card(panes.holes, panes.holes.listed_hole());
    refresh_panel(window, panes, panes.quick.figures());
}

void page_changed(round_form& window, const round_panes& panes)
{
    if (window.closingoK() || !window.on_detailed_page())
        leave_detailed_page(window, panes);
    else
        show_detailed_page(window, panes);
}

void open_shots_of_hole(round_form& window, const round_panes& panes)
{
    if (!panes.detailed.finish_typing())
        return;
    // After an attempt to close the window from the detailed page, the shots are not shown again, even if the
    // user chose Cancel: a blank shot would prevent the next attempt.
    if (window.closingoK())
        return;
    if (window.on_detailed_page() || window.date_value().isEmpty()) {
        if (panes.detailed.open_hole_shots())
            panes.detailed.focus_grid();
        return;
    }
    panes.pages.select(round_page::detailed);
    show_detailed_page(window, panes);
}

void enable_save_and_close(bool enabled)
{
    if (!main_frame())
        return;
    for (const QStringView key : {u"B4", u"B5"})
        main_frame()->enable_tool_button(key, enabled);
}

void refresh_panel(round_form& window, const round_panes& panes,
                   const Round_functions::figure_source& figures)
{
    window.mark_changed();
    const int16 hole = panes.holes.listed_hole();
    panes.statistics.show_hole(Round_functions::figures_from_source(hole, figures),
                               Round_functions::hole_par(hole));
}

void refresh_score(const quick_page& quick, totals_pane& totals)
{
    totals.show_round(Round_functions::labels_of(Round_functions::round_score(quick.figures())));
}

void load_hole(round_form& window, const round_panes& panes, int16 hole)
{
    panes.quick.show_stored(Round_functions::read_hole(hole));
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
    quick.show_counted(summary.counts);
}

void store_hole(const quick_page& quick, const QStringList& partners, int16 hole)
{
    const hole_figures figures = quick.figures();
    Round_functions::store_strokes(hole, figures);
    Round_functions::store_penalties(hole, figures);
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
