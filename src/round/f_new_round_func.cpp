#include "round/f_new_round_func.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "controls/boxes.h"
#include "controls/data_grid.h"
#include "controls/failure_guard.h"
#include "controls/main_frame.h"
#include "records/round_columns.h"
#include "reference/f_cost.h"
#include "round/detailed_page.h"
#include "round/f_get_date.h"
#include "round/f_new_round.h"
#include "round/f_new_round_layout.h"
#include "round/round_boxes.h"
#include "round/round_parameters.h"
#include "round/Round_records.h"
#include "round/shot_entry.h"
#include "round/shot_rows.h"
#include "store/close_if_open.h"
#include "store/DataEnvironment1.h"
#include "store/joined_commits.h"

namespace verdane::f_new_round_func {

using namespace Qt::StringLiterals;

namespace {

constexpr int width_twips = 15360;
constexpr int height_twips = 10020;

void unload_round_list()
{
    if (Form* list = open_form(u"f_games"))
        list->unload();
}

void start_on_first_hole(f_new_round& window)
{
    window.Frame7->hide();
    window.b_carte->hide();
    window.Label(round_box::hole_number).setText(u"1"_s);
}

void take_place(f_new_round& window)
{
    // With room for both pages from the start, the window keeps its size when they change.
    show_detailed_page(window);
    window.take_size({pixels(width_twips), pixels(height_twips)});
    const QSize size_of_detailed_page = window.size();
    show_quick_page(window);
    window.take_size(size_of_detailed_page);
    current_form = &window;
    Place_and_lock(window);
}

void fill_holes(f_new_round& window)
{
    QStringList numbers;
    for (int hole = 1; hole <= round_columns::hole_count; ++hole)
        numbers << QString::number(hole);
    fill_silently(*window.cmb_holes, numbers);
    window.cmb_holes->setCurrentIndex(0);
}

bool key_is_missing()
{
    return data_environment().rsgames2.Fields(round_columns::date).trimmed().isEmpty();
}

void ask_tee_off(f_new_round& window)
{
    window.choosing_date = true;
    f_get_date dialog(window);
    dialog.show_modal();
    window.choosing_date = false;
}

/// While no hole is loaded the recordset stands for every shot of the diary, at which nobody looks.
void open_shots()
{
    Recordset& shots = data_environment().rsStat_rounds;
    // What an earlier round could not store is not stored now.
    close_if_open(shots);
    shots.Open(shot_rows::a_hole_is_loaded() ? row_reading::at_once : row_reading::when_needed);
    shots.Requery();
}

/// The window is back from another one: the grid goes on where it was, on the shot that was being told.
void go_on_telling(f_new_round& window)
{
    const int row = window.details->currentIndex().row();
    Recordset& shots = data_environment().rsStat_rounds;
    // What could not be opened before is not tried again behind the golfer's back.
    if (shots.is_open()) {
        shots.Update();
        open_shots();
    }
    window.details->bound_model().move_to(row);
    window.details->ReBind();
    window.details->setFocus(Qt::OtherFocusReason);
}

void close_round_tables()
{
    DataEnvironment1& store = data_environment();
    store.rsgames2.Update();
    // A round that could not be loaded has not opened all of them.
    for (Recordset* recordset : {&store.rsgames2, &store.rsvrd_fields, &store.rscost, &store.rspartners,
                                 &store.rsgames, &store.rsfield_info})
        close_if_open(*recordset);
}

void close_shots()
{
    Recordset& shots = data_environment().rsStat_rounds;
    shots.Update();
    shots.Close();
    shots.set_Source(u"select * from stat_rounds"_s);
}

void drop_changes()
{
    DataEnvironment1& store = data_environment();
    store.rsgames.CancelUpdate();
    store.rsgames2.CancelUpdate();
    store.rscost.CancelUpdate();
    finishes_without_failure([&] { store.rsStat_rounds.CancelUpdate(); });
}

QMessageBox::StandardButton ask_to_save(const f_new_round& window)
{
    return show_message({window.caption(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                                        u"Do you want to save your changes prior to exit?"),
                         QMessageBox::NoIcon, QString(),
                         QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel});
}

/// `cmb_holes` stands on another hole already when one is left.
int16 hole_to_save(const f_new_round& window, bool silent)
{
    if (silent)
        return window.last_hole + 1;
    return hole_in_boxes(window);
}

void save_and_close(f_new_round& window)
{
    window.needSave = true;
    save_round(window, false);
    if (!window.needSave)
        window.unload();
}

void save_and_leave(f_new_round& window)
{
    save_round(window, true);
    int16 removed = 0;
    bool ok = true;
    drop_blank_shot(window, removed, ok);
    hole_tab_before_click(window);
    Unlock_menu();
    // The summary has changed the boxes since.
    if (window.isdetailed)
        save_round(window, true);
    window.unload();
}

}  // namespace

void load(f_new_round& window)
{
    start_on_first_hole(window);
    take_place(window);
    // A stored round without its second row has no holes to show; `load_stored_round` says so.
    if (data_environment().rsgames2.eof())
        return;
    fill_holes(window);
    fill_conditions(window);
    fill_partners(window);
    data_environment().rsvrd_fields.MoveFirst();
    show_cost_total(window);
    window.conditions->setCurrentIndex(0);
    window.text(round_box::date).clear();
    unload_round_list();
    // The list has unlocked the menu when it went.
    Lock_menu();
}

void activate(f_new_round& window)
{
    if (window.choosing_date)
        return;
    if (key_is_missing())
        ask_tee_off(window);
    if (key_is_missing()) {
        ask_and_close(window, true);
        return;
    }
    if (on_detailed_page(window)) {
        go_on_telling(window);
        return;
    }
    open_shots();
    window.text_vrd(round_box::long_shots).setFocus(Qt::TabFocusReason);
}

void unload(f_new_round& window)
{
    window.details->unbind();
    enable_save_and_close(true);
    finishes_without_failure(drop_untold_shot);
    finishes_without_failure(close_round_tables);
    finishes_without_failure(close_shots);
    Unlock_menu();
    unload_round_list();
}

void show_costs(f_new_round& window)
{
    if (!finish_typing(window))
        return;
    f_cost costs([&window](const QString& total) { window.text(round_box::costs).setText(total); });
    costs.show_modal();
}

void save_round(f_new_round& window, bool silent)
{
    if (window.text(round_box::date).text().isEmpty()) {
        tell(window.caption(u"Veuillez d'abord choisir la date de la ronde.",
                            u"Please select a round's date first."),
             QMessageBox::Critical);
        return;
    }
    const int16 hole = hole_to_save(window, silent);
    store_hole(window, hole);
    // A kill in between would leave half of the round's rows, or old figures of a hole beside new ones.
    joined_commits together(data_environment().connection);
    store_round_header(window);
    commit_round(window.date_value);
    together.finish();
    window.needSave = false;
    if (!silent)
        tell(window.caption(u"Les modifications sont enregistrées", u"Changes have been saved"));
}

void on_ok_cancel(f_new_round& window, int index)
{
    if (!finish_typing(window) || !check_shots(window))
        return;
    if (on_detailed_page(window)) {
        window.closingoK = true;
        page_changed(window);
    }
    if (index == round_box::ok) {
        save_and_leave(window);
        return;
    }
    Unlock_menu();
    ask_and_close(window, false);
}

void on_close_box(f_new_round& window)
{
    // A round that has no key yet holds nothing to ask about.
    if (window.date_value.isEmpty()) {
        ask_and_close(window, true);
        return;
    }
    // A distance that is too large has to be corrected, or dropped by Escape, here as everywhere.
    if (!finish_typing(window))
        return;
    // OK and Cancel keep the window open while a shot is incomplete. The close box shows the message, too,
    // and closes nevertheless.
    if (check_shots(window) && on_detailed_page(window)) {
        window.closingoK = true;
        page_changed(window);
    }
    ask_and_close(window, false);
}

void ask_and_close(f_new_round& window, bool skip_prompt)
{
    if (!window.needSave) {
        window.unload();
        return;
    }
    const auto answer = skip_prompt ? QMessageBox::No : ask_to_save(window);
    if (answer == QMessageBox::Yes)
        save_and_close(window);
    if (answer != QMessageBox::No)
        return;
    drop_changes();
    window.unload();
}

}  // namespace verdane::f_new_round_func
