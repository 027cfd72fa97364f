#include "tests/guided_day/day.h"
#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// A round at the end of the day, which is the last one in every list. It has one shot.
void add_last_round_of_day(day& today)
{
    today.user.menu(u"mOpen"_s);
    tee_off(today, u"23"_s, u"59"_s, today.french ? u"58"_s : u"59"_s);
    today.user.wait_for_window(today.window(u"f_new_round"_s));
    today.user.click(u"text_vrd_0"_s);
    today.user.type(u"112"_s);
    today.user.click_tab(u"TabStrip2"_s, 2);
    today.user.open_menu(u"details"_s, 0, 2);
    today.user.choose_menu_entry(u"ms1_1"_s);
    today.user.type(u"150"_s);
    today.user.key(Qt::Key_Return);
    today.user.type(u"l"_s);
    today.user.click(u"Command1_4"_s);
    today.user.wait_until_closed(today.window(u"f_new_round"_s));
}

int rounds_stored(const day& today)
{
    int rows = 0;
    for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s, u"Stat_rounds"_s})
        rows += today.store.number(u"select count(*) from "_s + table);
    return rows;
}

}  // namespace

void remove_round(day& today)
{
    const int before = rounds_stored(today);
    add_last_round_of_day(today);
    today.user.same(rounds_stored(today), before + 4, u"rows of another round"_s);
    today.user.menu(u"mnOPenr"_s);
    today.user.wait_for_window(today.window(u"f_games"_s));
    const int last = static_cast<int>(today.user.entries(u"List1"_s).size()) - 1;
    today.user.click_row(u"List1"_s, last);
    today.save_picture(u"f_games"_s, u"f_games_removal"_s);
    today.user.click(u"Command1_3"_s);
    today.answer(u"Attention : Toutes les données de cette ronde incluant les statistiques des bâtons et "
                 u"coups roulés seront supprimées. Voulez-vous continuer ?",
                 u"Attention: All data relative to this round will be removed, included associated "
                 u"statistics on clubs and putts. Do you wish to continue?",
                 QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    today.answer(u"Ronde supprimée", u"Round removed", QMessageBox::Information);
    today.user.same(static_cast<int>(today.user.entries(u"List1"_s).size()), last, u"rounds in the list"_s);
    today.user.click(u"Command1_2"_s);
    today.user.wait_until_closed(today.window(u"f_games"_s));
    today.user.same(rounds_stored(today), before, u"rows after the removal"_s);
}

}  // namespace verdane::guided_day
