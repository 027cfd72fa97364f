#include "round/hole_navigation.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/main_frame.h"
#include "records/round_rows.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/load_and_save.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_form.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "scoring/limits.h"

namespace verdane::f_new_round_func {

using namespace Qt::StringLiterals;

namespace {

/// Shows the listed hole in the tabs and as the number, and what is visible on the last hole only.
void follow_list(const round_panes& panes)
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

void go_to_quick_page(round_form& window, const round_panes& panes)
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
        go_to_quick_page(window, panes);
}

void go_to_detailed_page(round_form& window, const round_panes& panes)
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

}  // namespace

void hole_selected(round_form& window, const round_panes& panes)
{
    if (!window.first_entry())
        save_round(window, panes, true);
    const int16 hole = panes.holes.listed_hole();
    load_hole(window, panes, hole);
    window.hole_is_shown(hole);
    follow_list(panes);
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
        go_to_detailed_page(window, panes);
}

void open_shots_of_hole(round_form& window, const round_panes& panes)
{
    if (!panes.detailed.finish_typing())
        return;
    // Once the window was to be closed from the detailed page, it does not show its shots again, even if the
    // user chose Cancel then: a blank shot would prevent the next closing.
    if (window.closingoK())
        return;
    if (window.on_detailed_page() || window.date_value().isEmpty()) {
        if (panes.detailed.open_hole_shots())
            panes.detailed.focus_grid();
        return;
    }
    panes.pages.select(round_page::detailed);
    go_to_detailed_page(window, panes);
}

void enable_save_and_close(bool enabled)
{
    if (!main_frame())
        return;
    for (const QStringView key : {u"B4", u"B5"})
        main_frame()->enable_tool_button(key, enabled);
}

}  // namespace verdane::f_new_round_func
