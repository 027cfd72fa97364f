#include "round/hole_navigation.h"

#include "base/language.h"
#include "controls/boxes.h"
#include "controls/main_frame.h"
#include "records/round_rows.h"
#include "round/detailed_page.h"
#include "round/f_new_round.h"
#include "round/hole_bar.h"
#include "round/load_and_save.h"
#include "round/parameters_pane.h"
#include "round/quick_page.h"
#include "round/round_record.h"
#include "round/statistics_pane.h"
#include "scoring/limits.h"

namespace verdane::f_new_round_func {

using namespace Qt::StringLiterals;

namespace {

/// Shows the listed hole in the tabs and as the number, and what is visible on the last hole only.
void follow_list(f_new_round& window)
{
    const int hole = plain(window.holes().listed_hole());
    window.holes().show_hole(hole);
    window.totals().setVisible(hole == hole_count);
    window.detailed().show_finish_button(hole == hole_count);
}

/// Checks twice and uses only the second result, that of `drop_blank_shot`. A blank first shot is reported
/// and removed, and the hole changes. An incomplete later shot is reported twice.
bool may_leave_shots(f_new_round& window)
{
    detailed_page& shots = window.detailed();
    if (!shots.finish_typing())
        return false;
    shots.check_shots();
    shots.summarise_hole();
    return shots.drop_blank_shot().shots_complete.value_or(true);
}

void go_to_quick_page(f_new_round& window)
{
    if (!window.detailed().drop_blank_shot().removed)
        window.detailed().summarise_hole();
    window.show_page(round_page::quick);
    // When the window is to be closed, the tab of the other page is still selected.
    window.pages().select(round_page::quick);
    window.holes().select_in_list(window.holes().selected_tab());
    enable_save_and_close(true);
    window.quick().focus_first_box();
}

void leave_detailed_page(f_new_round& window)
{
    if (window.detailed().isHidden())
        window.pages().select(round_page::quick);
    else
        go_to_quick_page(window);
}

void go_to_detailed_page(f_new_round& window)
{
    window.shots().commit();
    window.show_page(round_page::detailed);
    if (window.date_value().isEmpty()) {
        show_information(u"Il faut choisir la date du ronde avant d'entrer les détails"_s,
                         QMessageBox::Critical);
        return;
    }
    window.detailed().open_hole_shots();
    enable_save_and_close(false);
    window.detailed().enter();
    Lock_menu();
    window.detailed().focus_club();
}

}  // namespace

void hole_selected(f_new_round& window)
{
    if (!window.first_entry())
        save_round(window, true);
    const int16 hole = window.holes().listed_hole();
    load_hole(window, hole);
    window.hole_is_shown(hole);
    follow_list(window);
    refresh_score(window);
}

void hole_chosen(f_new_round& window)
{
    const int chosen = plain(window.holes().listed_hole());
    const int shown = plain(window.last_hole()) + 1;
    if (!window.on_detailed_page() || chosen == shown) {
        hole_selected(window);
        return;
    }
    window.holes().select_in_list_silently(shown);
    window.holes().click_tab(chosen);
}

bool hole_tab_before_click(f_new_round& window)
{
    if (window.on_detailed_page())
        return may_leave_shots(window);
    window.quick().focus_first_box();
    return true;
}

void hole_tab_clicked(f_new_round& window)
{
    // Without an event of the list: a click on the tab of the hole on screen, which does not change the list,
    // saves the boxes, too.
    window.holes().select_in_list_silently(window.holes().selected_tab());
    hole_selected(window);
    if (!window.on_detailed_page())
        window.quick().focus_first_box();
    else if (window.detailed().open_hole_shots())
        window.detailed().focus_club();
    window.quick().select_first_box();
}

void course_selected(f_new_round& window)
{
    round_record::find_holes_of_course(Round_functions::course_code_at(window.parameters().course_index()));
    show_hole_card(window, window.holes().listed_hole());
    refresh_panel(window, window.quick().figures());
}

void page_changed(f_new_round& window)
{
    if (window.closingoK() || !window.on_detailed_page())
        leave_detailed_page(window);
    else
        go_to_detailed_page(window);
}

void open_shots_of_hole(f_new_round& window)
{
    if (!window.detailed().finish_typing())
        return;
    // Once the window was to be closed from the detailed page, it does not show its shots again, even if the
    // user chose Cancel then: a blank shot would prevent the next closing.
    if (window.closingoK())
        return;
    if (window.on_detailed_page() || window.date_value().isEmpty()) {
        if (window.detailed().open_hole_shots())
            window.detailed().focus_grid();
        return;
    }
    window.pages().select(round_page::detailed);
    go_to_detailed_page(window);
}

void enable_save_and_close(bool enabled)
{
    if (!main_frame())
        return;
    for (const QStringView key : {u"B4", u"B5"})
        main_frame()->enable_tool_button(key, enabled);
}

}  // namespace verdane::f_new_round_func
