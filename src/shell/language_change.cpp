#include "shell/language_change.h"

#include "controls/interface_language.h"
#include "shell/MainForm.h"
#include "shell/start_up.h"
#include "store/DataEnvironment1.h"
#include "store/tables/settings.h"

namespace verdane {

namespace {

void store_language(int value)
{
    Recordset& rssettings = data_environment().rssettings;
    rssettings.Open();
    rssettings.Fields(tables::settings::language).set(value);
    rssettings.Update();
    rssettings.Close();
}

}  // namespace

void change_language(int value)
{
    store_language(value);
    MainForm::of_run()->tick_language(value);
    set_interface_language(value == french_value);
    load_club_names();
    MainForm::of_run()->reload();
}

}  // namespace verdane
