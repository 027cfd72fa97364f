#include "round/hole_navigation.h"

#include "controls/boxes.h"
#include "controls/main_frame.h"
#include "round/detailed_page.h"
#include "round/hole_bar.h"
#include "round/page_bar.h"
#include "round/quick_page.h"
#include "round/round_boxes.h"
#include "round/round_form.h"
#include "round/statistics_pane.h"
#include "scoring/limits.h"

namespace verdane {

using namespace Qt::StringLiterals;

hole_navigation::hole_navigation(round_form& window, const round_panes& panes, round_boxes& boxes)
    : window_(window),
      holes_(panes.holes),
      pages_(panes.pages),
      quick_(panes.quick),
      detailed_(panes.detailed),
      totals_(panes.totals),
      shots_(panes.shots),
      boxes_(boxes)
{
}

bool hole_navigation::on_detailed_page() const
{
    return pages_.is_selected(round_page::detailed);
}

void hole_navigation::hole_selected()
{
    const bool is_first = holes_.hole() == 0;
    if (!is_first)
        boxes_.save_round(true);
    const int16 hole = holes_.listed_hole();
    holes_.show_hole(hole);
    boxes_.load_hole();
    totals_.setVisible(hole == hole_count);
    detailed_.show_finish_button(hole == hole_count);
    boxes_.refresh_score();
}

void hole_navigation::hole_chosen()
{
    const int16 chosen = holes_.listed_hole();
    if (!on_detailed_page() || chosen == holes_.hole()) {
        hole_selected();
        return;
    }
    holes_.select_in_list_silently(plain(holes_.hole()));
    holes_.click_tab(plain(chosen));
}

bool hole_navigation::hole_tab_before_click()
{
    if (on_detailed_page())
        return may_leave_shots();
    quick_.focus_first_box();
    return true;
}

/// Checks twice and uses only the second result, that of `drop_blank_shot`. A blank first shot is reported
/// and removed, and the hole changes. An incomplete later shot is reported twice.
bool hole_navigation::may_leave_shots()
{
    if (!detailed_.finish_typing())
        return false;
    detailed_.check_shots();
    detailed_.summarise_hole();
    return detailed_.drop_blank_shot().shots_complete.value_or(true);
}

void hole_navigation::hole_tab_clicked()
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

void hole_navigation::page_changed()
{
    if (closingoK_ || !on_detailed_page())
        leave_detailed_page();
    else
        show_detailed_page();
}

void hole_navigation::leave_detailed_page()
{
    if (detailed_.isHidden())
        pages_.select(round_page::quick);
    else
        show_quick_page();
}

void hole_navigation::show_quick_page()
{
    if (!detailed_.drop_blank_shot().removed)
        detailed_.summarise_hole();
    window_.show_page(round_page::quick);
    // When the window is to be closed, the tab of the other page is still selected.
    pages_.select(round_page::quick);
    enable_save_and_close(true);
    quick_.focus_first_box();
}

void hole_navigation::show_detailed_page()
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

void hole_navigation::open_shots_of_hole()
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

void hole_navigation::return_to_quick_page()
{
    if (!on_detailed_page())
        return;
    closingoK_ = true;
    page_changed();
}

void enable_save_and_close(bool enabled)
{
    if (!main_frame())
        return;
    for (const QStringView key : {u"B4", u"B5"})
        main_frame()->enable_tool_button(key, enabled);
}

}  // namespace verdane
