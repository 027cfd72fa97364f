#include "tests/guided_day/day.h"
#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

namespace {

/// The round window is the largest; it fits on a small screen.
void check_size(day& today)
{
    const QSize size = today.user.picture(today.window(QStringLiteral("f_new_round"))).size();
    today.user.check(size.width() <= 1200 && size.height() <= 720,
                     QStringLiteral("the round window takes %1 x %2").arg(size.width()).arg(size.height()));
}

}  // namespace

void play_round(day& today)
{
    today.user.menu(QStringLiteral("mOpen"));
    tee_off(today, today.round.hours, today.round.minutes, today.round.seconds, QStringLiteral("f_get_date"));
    today.user.wait_for_window(today.window(QStringLiteral("f_new_round")));
    check_size(today);
    choose_course(today);
    today.user.choose(QStringLiteral("conditions"), today.french ? 1 : 3);
    type_holes(today, today.round, 1, 4);
    today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_new_round"));
    type_holes(today, today.round, 5, 18);
    keep_costs(today, 85, 20, QStringLiteral("f_cost"));
    today.user.same(today.user.text(QStringLiteral("l_brut")), QString::number(today.round.gross()),
                    QStringLiteral("gross of the round"));
    today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_new_round_18"));
    today.user.click(QStringLiteral("Command1_4"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_new_round")));
}

void reopen_round(day& today)
{
    today.user.menu(QStringLiteral("mnOPenr"));
    today.user.wait_for_window(today.window(QStringLiteral("f_games")));
    today.keep(QStringLiteral("f_games"), QStringLiteral("f_games"));
    const int last = static_cast<int>(today.user.entries(QStringLiteral("List1")).size()) - 1;
    today.user.double_click_row(QStringLiteral("List1"), last);
    today.user.wait_for_window(today.window(QStringLiteral("f_new_round")));
    today.user.click_tab(QStringLiteral("TabStrip1"), 18);
    today.user.same(today.user.text(QStringLiteral("l_brut")), QString::number(today.round.gross()),
                    QStringLiteral("gross of the reopened round"));
    today.user.click(QStringLiteral("Command1_2"));
    today.answer(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                 u"Do you want to save your changes prior to exit?", QMessageBox::NoIcon,
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No, QString());
    today.user.wait_until_gone(today.window(QStringLiteral("f_new_round")));
}

}  // namespace verdane::guided_day
