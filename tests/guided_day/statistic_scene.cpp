#include "tests/guided_day/day.h"
#include "tests/guided_day/report_prints.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// Selects the round of this day, the last one of both lists.
void choose_round(day& today)
{
    const int last = static_cast<int>(today.user.entries(u"List1"_s).size()) - 1;
    today.user.click_row(u"List1"_s, last);
    today.user.click_row(u"List2"_s, last);
}

}  // namespace

void print_statistic(day& today)
{
    today.user.menu(u"mnstatr"_s);
    today.user.wait_for_window(today.window(u"f_date_range"_s));
    choose_round(today);
    today.save_picture(u"f_date_range"_s, u"f_date_range_day"_s);
    today.user.click(u"Command2"_s);
    today.answer(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK pour "
                 u"vérifier si des statistiques sommaires existent.",
                 u"Verdane could not find any detailed rounds with the chosen parameters. Click on OK to "
                 u"calculate summary statistics.");
    save_report(today, u"day"_s);
    today.user.click(u"CancelButton"_s);
    today.user.wait_until_closed(today.window(u"f_date_range"_s));
}

}  // namespace verdane::guided_day
