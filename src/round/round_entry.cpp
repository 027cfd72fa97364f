#include "round/round_entry.h"

#include "controls/boxes.h"
#include "controls/main_frame.h"
#include "records/Main_module.h"
#include "records/round_rows.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/page_bar.h"
#include "round/parameters_pane.h"
#include "round/places_left.h"
#include "round/quick_page.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "scoring/hole_summary.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

round_entry::round_entry(round_form& window, const round_panes& panes)
    : window_(window),
      holes_(panes.holes),
      pages_(panes.pages),
      quick_(panes.quick),
      statistics_(panes.statistics),
      detailed_(panes.detailed),
      parameters_(panes.parameters),
      totals_(panes.totals),
      shots_(panes.shots)
{
}

void round_entry::hole_selected()
{
    const bool is_first = holes_.hole() == 0;
    if (!is_first)
        save_round(true);
    const int16 hole = holes_.listed_hole();
    holes_.show_hole(hole);
    load_hole();
    totals_.setVisible(hole == hole_count);
    detailed_.show_finish_button(hole == hole_count);
    refresh_score();
}

void round_entry::load_hole()
{
    quick_.show_stored(Round_functions::read_hole(holes_.hole()));
    show_hole_card();
    refresh_panel(Round_functions::from_row);
}

/// From the current row of `rsfield_info`.
void round_entry::show_hole_card()
{
    holes_.show_card(Round_functions::read_hole_card(holes_.hole()));
}

void round_entry::hole_list_changed()
{
    const int16 chosen = holes_.listed_hole();
    if (!on_detailed_page() || chosen == holes_.hole()) {
        hole_selected();
        return;
    }
    holes_.select_in_list_silently(plain(holes_.hole()));
    holes_.click_tab(plain(chosen));
}

bool round_entry::hole_tab_before_click()
{
    if (on_detailed_page())
        return may_leave_shots();
    quick_.focus_first_box();
    return true;
}

/// Checks twice and uses only the second result, that of `drop_blank_shot`. A blank first shot is reported
/// and removed, and the hole changes. An incomplete later shot is reported twice.
bool round_entry::may_leave_shots()
{
    if (!detailed_.finish_typing())
        return false;
    detailed_.check_shots();
    detailed_.summarise_hole();
    return detailed_.drop_blank_shot().shots_complete.value_or(true);
}

void round_entry::hole_tab_clicked()
{
    // Without `list_changed`: a click on the tab of the hole on screen does not change the list, but saves
    // the boxes, too. So `hole_selected` is called below in every case.
    holes_.select_in_list_silently(holes_.selected_tab());
    hole_selected();
    if (!on_detailed_page())
        quick_.focus_first_box();
    else if (detailed_.open_hole_shots())
        detailed_.focus_club();
    quick_.select_first_box();
}

bool round_entry::on_detailed_page() const
{
    return pages_.is_selected(round_page::detailed);
}

void round_entry::page_changed()
{
    if (closingoK_ || !on_detailed_page())
        leave_detailed_page();
    else
        show_detailed_page();
}

void round_entry::leave_detailed_page()
{
    if (detailed_.isHidden())
        pages_.select(round_page::quick);
    else
        show_quick_page();
}

void round_entry::show_quick_page()
{
    if (!detailed_.drop_blank_shot().removed)
        detailed_.summarise_hole();
    window_.show_page(round_page::quick);
    // When the window is to be closed, the tab of the other page is still selected.
    pages_.select(round_page::quick);
    enable_save_and_close(true);
    quick_.focus_first_box();
}

void round_entry::show_detailed_page()
{
    shots_.commit();
    window_.show_page(round_page::detailed);
    if (window_.date_value().isEmpty()) {
        // French in both languages.
        show_information(u"Il faut choisir la date du ronde avant d'entrer les détails"_s,
                         QMessageBox::Critical);
        return;
    }
    detailed_.open_hole_shots();
    enable_save_and_close(false);
    detailed_.enter();
    Lock_menu();
    detailed_.focus_club();
}

void round_entry::open_shots_of_hole()
{
    if (!detailed_.finish_typing())
        return;
    // After an attempt to close the window from the detailed page, the shots are not shown again, even if the
    // user chose Cancel: a blank shot would prevent the next attempt.
    if (closingoK_)
        return;
    if (on_detailed_page() || window_.date_value().isEmpty()) {
        if (detailed_.open_hole_shots())
            detailed_.focus_grid();
        return;
    }
    pages_.select(round_page::detailed);
    show_detailed_page();
}

void round_entry::return_to_quick_page()
{
    if (!on_detailed_page())
        return;
    closingoK_ = true;
    page_changed();
}

void round_entry::course_selected()
{
    round_record::move_to_course_and_holes(parameters_.course_index());
    show_hole_card();
    refresh_panel_from_boxes();
}

void round_entry::refresh_panel(const Round_functions::figure_source& figures)
{
    needSave_ = true;
    const int16 hole = holes_.hole();
    statistics_.show_hole(Round_functions::figures_from_source(hole, figures),
                          Round_functions::hole_par(hole));
}

void round_entry::refresh_panel_from_boxes()
{
    refresh_panel(quick_.figures());
}

void round_entry::refresh_score()
{
    totals_.show_round(Round_functions::labels_of(Round_functions::round_score(quick_.figures())));
}

void round_entry::show_summary(const hole_summary& summary)
{
    quick_.show_counted(summary.counts);
}

void round_entry::save_round(bool silent)
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
    show_places_left();
    if (!silent)
        show_information(window_.caption(u"Les modifications sont enregistrées", u"Changes have been saved"));
}

void round_entry::show_places_left() const
{
    const places_warning warning =
        warning_of_places(Main_module::places_left(), Main_module::rounds_with_key(), window_.french());
    pages_.show_note(warning.line, warning.explanation);
}

void round_entry::store_hole()
{
    const int16 hole = holes_.hole();
    const hole_figures figures = quick_.figures();
    Round_functions::store_strokes(hole, figures);
    Round_functions::store_penalties(hole, figures);
    round_record::store_partners(parameters_.selected_partners());
    Round_functions::store_situation(hole, quick_.situation());
}

void enable_save_and_close(bool enabled)
{
    if (!main_frame())
        return;
    for (const QStringView key : {u"B4", u"B5"})
        main_frame()->enable_tool_button(key, enabled);
}

}  // namespace verdane
