#include "tests/guided_day/day.h"
#include "tests/guided_day/report_prints.h"

namespace verdane::guided_day {

namespace {

/// The statistic over this day's round alone: it stands last in both lists.
void choose_round(day& today)
{
    const int last = static_cast<int>(today.user.entries(QStringLiteral("List1")).size()) - 1;
    today.user.click_row(QStringLiteral("List1"), last);
    today.user.click_row(QStringLiteral("List2"), last);
}

}  // namespace

void print_statistic(day& today)
{
    today.user.menu(QStringLiteral("mnstatr"));
    today.user.wait_for_window(today.window(QStringLiteral("f_date_range")));
    choose_round(today);
    today.keep(QStringLiteral("f_date_range"), QStringLiteral("f_date_range_day"));
    today.user.click(QStringLiteral("Command2"));
    today.answer(u"Verdane n'a trouvé aucune ronde détaillée avec les conditions choisies. Faite OK pour "
                 u"vérifier si des statistiques sommaires existent.",
                 u"Verdane could not find any detailed rounds with the chosen parameters. Click on OK to "
                 u"calculate summary statistics.");
    keep_report(today, QStringLiteral("day"));
    today.user.click(QStringLiteral("CancelButton"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_date_range")));
}

}  // namespace verdane::guided_day
