#include "round/detailed_page.h"

#include <QComboBox>
#include <QLineEdit>

#include "controls/boxes.h"
#include "controls/data_grid.h"
#include "controls/main_frame.h"
#include "round/details_grid.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "round/round_boxes.h"
#include "round/shot_entry.h"
#include "round/shot_menus.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_new_round_func {

using namespace Qt::StringLiterals;

namespace {

void go_to_quick_page(f_new_round& window)
{
    int16 removed = 1;
    bool ok = true;
    drop_blank_shot(window, removed, ok);
    if (removed == 0)
        summarise_hole(window);
    show_quick_page(window);
    // Forced back while closing, the tab is still on the other page.
    window.TabStrip2->select(quick_page);
    window.cmb_holes->setCurrentIndex(window.TabStrip1->selected() - 1);
    enable_save_and_close(true);
    window.text_vrd(round_box::long_shots).setFocus(Qt::TabFocusReason);
}

/// Nothing changes for who is on the quick page already.
void leave_detailed_page(f_new_round& window)
{
    if (window.Framedet->isHidden())
        window.TabStrip2->select(quick_page);
    else
        go_to_quick_page(window);
}

void go_to_detailed_page(f_new_round& window)
{
    Recordset& shots = data_environment().rsStat_rounds;
    if (shots.is_open())
        shots.Update();
    show_detailed_page(window);
    if (window.date_value.isEmpty()) {
        tell(u"Il faut choisir la date du ronde avant d'entrer les détails"_s, QMessageBox::Critical);
        return;
    }
    open_hole_shots(window);
    enable_save_and_close(false);
    name_clubs(window);
    set_up_columns(window);
    Lock_menu();
    window.details->set_Col(details_column::club);
    window.details->setFocus(Qt::OtherFocusReason);
}

}  // namespace

bool on_detailed_page(const f_new_round& window)
{
    return window.TabStrip2->selected() == detailed_page;
}

void page_changed(f_new_round& window)
{
    if (window.closingoK || !on_detailed_page(window))
        leave_detailed_page(window);
    else
        go_to_detailed_page(window);
}

void tell_shot_by_shot(f_new_round& window)
{
    if (!finish_typing(window))
        return;
    // Once the window was to be closed its shots stay out of sight, also when the question was answered
    // with Cancel, and a blank one among them would hold it open.
    if (window.closingoK)
        return;
    if (on_detailed_page(window) || window.date_value.isEmpty()) {
        if (open_hole_shots(window))
            window.details->setFocus(Qt::OtherFocusReason);
        return;
    }
    window.TabStrip2->select(detailed_page);
    go_to_detailed_page(window);
}

bool finish_typing(f_new_round& window)
{
    return window.details->commit_cell();
}

void enable_save_and_close(bool enabled)
{
    if (!main_frame())
        return;
    for (const QStringView key : {u"B4", u"B5"})
        main_frame()->enable_tool_button(key, enabled);
}

}  // namespace verdane::f_new_round_func
