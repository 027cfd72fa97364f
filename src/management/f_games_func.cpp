#include "management/f_games_func.h"

#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "management/f_games.h"
#include "management/round_removal.h"
#include "records/round_list.h"
#include "round/f_new_round.h"
#include "scoring/round_key.h"
#include "store/DataEnvironment1.h"

namespace verdane::f_games_func {

namespace {

void close_recordsets()
{
    DataEnvironment1& store = data_environment();
    // Save and Close of the main window may address a list that is already unloaded.
    for (Recordset* rows : {&store.rsgames, &store.rsfield_info})
        close_if_open(*rows);
}

void close_window(f_games& window)
{
    if (!window.is_loaded())
        return;
    Unlock_menu();
    close_recordsets();
    window.unload();
}

void stop_without_rounds(f_games& window)
{
    show_information(window.caption(u"Il n'y a pas de ronde enregistrée", u"There is no round registered"),
                     QMessageBox::Information);
    close_window(window);
}

void open_selected_round(f_games& window)
{
    const QString selected = window.selected_line();
    if (selected.isNull())
        return;
    open_stored_round(Verdane_tools::key_of_entry(selected));
    // If the round was refused, the recordsets of the list are still open.
    close_recordsets();
}

bool removal_is_wanted(const f_games& window)
{
    return ask_yes_no(
        window.caption(u"Attention : Toutes les données de cette ronde incluant les statistiques des bâtons "
                       u"et coups roulés seront supprimées. Voulez-vous continuer ?",
                       u"Attention: All data relative to this round will be removed, included associated "
                       u"statistics on clubs and putts. Do you wish to continue?"));
}

void remove_selected_round(f_games& window)
{
    const QString selected = window.selected_line();
    if (selected.isNull())
        return;
    const QString key = Verdane_tools::key_of_entry(selected);
    if (!removal_is_wanted(window))
        return;
    remove_round(key);
    window.remove_selected_line();
    show_information(window.caption(u"Ronde supprimée", u"Round removed"), QMessageBox::Information);
}

}  // namespace

void load(f_games& window)
{
    current_form = &window;
    Place_and_lock(window);
    DataEnvironment1& store = data_environment();
    Round_functions::open_rounds_in_time_order();
    store.rsfield_info.Open();
    if (store.rsgames.eof()) {
        stop_without_rounds(window);
        return;
    }
    window.show_rounds(Round_functions::round_list_lines());
}

void on_command(f_games& window, int index)
{
    switch (index) {
    case f_games::open:
        open_selected_round(window);
        break;
    case f_games::add:
        // A round exists, so there is a course, and the test for one is not needed.
        prepare_round_window();
        close_recordsets();
        break;
    case f_games::remove:
        remove_selected_round(window);
        break;
    default:
        close_window(window);
    }
}

void unload()
{
    finishes_without_failure([] { Unlock_menu(); });
}

}  // namespace verdane::f_games_func
