#include "tests/guided_day/day.h"
#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

namespace {

/// The last moment of the day, so that the round stands last in every list. A shot of it is told.
void start_round_in_the_dark(day& today)
{
    today.user.menu(QStringLiteral("mOpen"));
    tee_off(today, QStringLiteral("23"), QStringLiteral("59"),
            today.french ? QStringLiteral("58") : QStringLiteral("59"));
    today.user.wait_for_window(today.window(QStringLiteral("f_new_round")));
    today.user.click(QStringLiteral("text_vrd_0"));
    today.user.type(QStringLiteral("112"));
    today.user.click_tab(QStringLiteral("TabStrip2"), 2);
    today.user.open_menu(QStringLiteral("details"), 0, 2);
    today.user.choose_menu_entry(QStringLiteral("ms1_1"));
    today.user.type(QStringLiteral("150"));
    today.user.key(Qt::Key_Return);
    today.user.type(QStringLiteral("l"));
    today.user.click(QStringLiteral("Command1_4"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_new_round")));
}

int rounds_stored(const day& today)
{
    int rows = 0;
    for (const QString& table : {QStringLiteral("games"), QStringLiteral("games2"), QStringLiteral("cost"),
                                 QStringLiteral("Stat_rounds")})
        rows += today.store.number(QStringLiteral("select count(*) from ") + table);
    return rows;
}

}  // namespace

void remove_round(day& today)
{
    const int before = rounds_stored(today);
    start_round_in_the_dark(today);
    today.user.same(rounds_stored(today), before + 4, QStringLiteral("rows of another round"));
    today.user.menu(QStringLiteral("mnOPenr"));
    today.user.wait_for_window(today.window(QStringLiteral("f_games")));
    const int last = static_cast<int>(today.user.entries(QStringLiteral("List1")).size()) - 1;
    today.user.click_row(QStringLiteral("List1"), last);
    today.keep(QStringLiteral("f_games"), QStringLiteral("f_games_removal"));
    today.user.click(QStringLiteral("Command1_3"));
    today.answer(u"Attention : Toutes les données de cette ronde incluant les statistiques des bâtons et "
                 u"coups roulés seront supprimées. Voulez-vous continuer ?",
                 u"Attention: All data relative to this round will be removed, included associated "
                 u"statistics on clubs and putts. Do you wish to continue?",
                 QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    today.answer(u"Ronde supprimée", u"Round removed", QMessageBox::Information);
    today.user.same(static_cast<int>(today.user.entries(QStringLiteral("List1")).size()), last,
                    QStringLiteral("rounds in the list"));
    today.user.click(QStringLiteral("Command1_2"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_games")));
    today.user.same(rounds_stored(today), before, QStringLiteral("rows once it is removed"));
}

}  // namespace verdane::guided_day
