#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "controls/data_grid.h"
#include "controls/keys.h"
#include "records/round_columns.h"
#include "records/round_rows.h"
#include "round/course_box.h"
#include "round/detailed_page.h"
#include "round/f_new_round.h"
#include "round/f_new_round_func.h"
#include "round/round_boxes.h"
#include "round/round_panel.h"
#include "round/Round_records.h"
#include "round/shot_entry.h"
#include "round/shot_menus.h"

/// From hole to hole, and from course to course.
namespace verdane::f_new_round_func {

namespace {

/// The tabs and the number follow whatever chose the hole.
void follow_hole(f_new_round& window)
{
    window.TabStrip1->select(plain(window.hole_shown()));
    window.Label(round_box::hole_number).setText(QString::number(plain(window.hole_shown())));
    for (QWidget* of_last_hole : {window.Frame7, static_cast<QWidget*>(window.b_carte)})
        of_last_hole->setVisible(window.hole_shown() == round_columns::hole_count);
}

void show_shots_of_hole(f_new_round& window)
{
    if (!open_hole_shots(window))
        return;
    window.details->set_Col(details_column::club);
    window.details->setFocus(Qt::OtherFocusReason);
}

/// What the detailed page asks before its hole is left. Whether the shots are complete is told, but only
/// the second check, behind a blank first shot, can keep the hole.
bool may_leave_shots(f_new_round& window)
{
    if (!finish_typing(window))
        return false;
    check_shots(window);
    summarise_hole(window);
    int16 removed = 0;
    bool ok = true;
    drop_blank_shot(window, removed, ok);
    return ok;
}

}  // namespace

void hole_selected(f_new_round& window)
{
    if (!window.first_entry)
        save_round(window, true);
    window.first_entry = false;
    load_hole(window, window.hole_shown());
    window.last_hole = static_cast<std::int16_t>(window.cmb_holes->currentIndex());
    follow_hole(window);
    refresh_score(window);
}

void hole_chosen(f_new_round& window)
{
    const int chosen = window.cmb_holes->currentIndex();
    if (!on_detailed_page(window) || chosen == plain(window.last_hole)) {
        hole_selected(window);
        return;
    }
    {
        const QSignalBlocker silence(window.cmb_holes);
        window.cmb_holes->setCurrentIndex(plain(window.last_hole));
    }
    window.TabStrip1->click(chosen + 1);
}

bool hole_tab_before_click(f_new_round& window)
{
    if (on_detailed_page(window))
        return may_leave_shots(window);
    window.text_vrd(round_box::long_shots).setFocus(Qt::TabFocusReason);
    return true;
}

void hole_tab_clicked(f_new_round& window)
{
    {
        const QSignalBlocker silence(window.cmb_holes);
        window.cmb_holes->setCurrentIndex(window.TabStrip1->selected() - 1);
    }
    // A click on the tab of the hole on screen changes no index, and what was typed is stored all the
    // same.
    hole_selected(window);
    if (on_detailed_page(window))
        show_shots_of_hole(window);
    else
        window.text_vrd(round_box::long_shots).setFocus(Qt::TabFocusReason);
    select_characters(window.text_vrd(round_box::long_shots), 4);
}

void course_selected(f_new_round& window)
{
    const QString code = Round_functions::course_code_at(window.cmb_courses->currentIndex());
    find_in_field_info(code);
    show_hole_card(window, window.hole_shown());
    refresh_panel(window, false);
}

}  // namespace verdane::f_new_round_func
