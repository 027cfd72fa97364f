#include "shell/main_commands.h"

#include "base/language.h"
#include "base/program.h"
#include "controls/boxes.h"
#include "controls/failure_guard.h"
#include "controls/Form.h"
#include "controls/main_frame.h"
#include "management/f_games.h"
#include "records/Main_module.h"
#include "reference/f_c_list.h"
#include "reference/f_partners.h"
#include "reference/f_sticks.h"
#include "round/f_new_round.h"
#include "shell/f_about.h"
#include "shell/f_lang.h"
#include "statistics/f_carte.h"
#include "statistics/f_date_range.h"
#include "store/DataEnvironment1.h"
#include "store/orphan_shots.h"
#include "store/tables/settings.h"

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

bool has_rows(Recordset& recordset)
{
    constexpr int key = 0;
    recordset.Open(first_columns{{key}});
    const bool rows = !recordset.empty();
    recordset.Close();
    return rows;
}

bool a_round_is_stored()
{
    return has_rows(data_environment().rsgames);
}

template <typename Window, typename... Arguments>
void open_window(Arguments... arguments)
{
    Window window(arguments...);
    window.show_modal();
}

void open_statistics(statistics_mode mode)
{
    if (!a_round_is_stored()) {
        show_information(in_language(u"Verdane n'a trouvé aucune ronde", u"Verdane did not find any round"),
                         QMessageBox::Critical);
        return;
    }
    open_window<f_date_range>(mode);
}

void store_language(int value)
{
    Recordset& rssettings = data_environment().rssettings;
    rssettings.Open();
    rssettings.Fields(tables::settings::language).set(value);
    rssettings.Update();
    rssettings.Close();
}

/// Stores the value, reads the club names again and reloads the main window.
void change_language(int value)
{
    store_language(value);
    set_interface_language(value == french_value);
    Main_module::load_club_names();
    main_frame()->reload();
}

}  // namespace

bool a_course_is_stored()
{
    Recordset courses(data_environment().connection,
                      {u"first_course"_s, u"select code from vrd_fields limit 1"_s});
    courses.Open();
    return !courses.empty();
}

void command_new_round()
{
    start_new_round();
}

void command_round_list()
{
    if (!a_round_is_stored()) {
        show_information(in_language(u"Il n'y a pas de ronde enregistrée", u"There is no round registered"),
                         QMessageBox::Information);
        return;
    }
    open_window<f_games>();
}

void command_course_list()
{
    open_window<f_c_list>();
}

void command_scorecard()
{
    if (!has_rows(data_environment().rsvrd_fields)) {
        show_information(
            in_language(u"Verdane n'a trouver aucun terrain. Il faut au moins un terrain pour imprimmer une "
                        u"carte",
                        u"Verdane found no golf course. There has to be at least one registered"),
            QMessageBox::Critical);
        return;
    }
    open_window<f_carte>();
}

void command_golf_bag()
{
    open_window<f_sticks>();
}

void command_club_statistics()
{
    open_statistics(statistics_mode::club);
}

void command_putt_statistics()
{
    open_statistics(statistics_mode::putt);
}

void command_round_statistics()
{
    open_statistics(statistics_mode::round);
}

void command_cost_statistics()
{
    open_statistics(statistics_mode::cost);
}

void command_partners()
{
    open_window<f_partners>();
}

void command_about()
{
    open_window<f_about>();
}

void command_store_clean_up()
{
    remove_orphan_shots([](const QString& text) { show_information(text); });
    show_information(u"Fin"_s);
}

void command_save()
{
    if (current_form && current_form->is_loaded())
        current_form->save();
    else
        show_information(in_language(u"Il n'y a rien à enregistrer.", u"There is nothing to save."),
                         QMessageBox::Information);
}

void command_close()
{
    Unlock_menu();
    if (current_form && current_form->is_loaded())
        current_form->closeForm();
    else
        show_information(in_language(u"Il n'y a rien à fermer.", u"There is nothing to close."),
                         QMessageBox::Information);
}

void command_english()
{
    change_language(english_value);
}

void command_french()
{
    change_language(french_value);
}

void command_quit()
{
    finishes_without_failure([] { main_frame()->frame_widget()->close(); });
}

}  // namespace verdane
