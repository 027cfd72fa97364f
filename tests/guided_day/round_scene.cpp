#include "tests/guided_day/day.h"
#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// The round window is the largest one, and fits on a small screen.
void check_size(day& today)
{
    const QSize size = today.user.picture(today.window(u"f_new_round"_s)).size();
    today.user.check(size.width() <= 1200 && size.height() <= 720,
                     u"the round window has %1 x %2 pixels"_s.arg(size.width()).arg(size.height()));
}

}  // namespace

void enter_round(day& today)
{
    today.user.menu(u"mOpen"_s);
    tee_off(today, today.round.hours, today.round.minutes, today.round.seconds, u"f_get_date"_s);
    today.user.wait_for_window(today.window(u"f_new_round"_s));
    check_size(today);
    choose_course(today);
    today.user.choose(u"conditions"_s, today.french ? 1 : 3);
    type_holes(today, today.round, 1, 4);
    today.save_picture(u"f_new_round"_s, u"f_new_round"_s);
    type_holes(today, today.round, 5, 18);
    enter_costs(today, 85, 20, u"f_cost"_s);
    today.user.same(today.user.text(u"l_brut"_s), QString::number(today.round.gross()),
                    u"gross of the round"_s);
    today.save_picture(u"f_new_round"_s, u"f_new_round_18"_s);
    today.user.click(u"Command1_4"_s);
    today.user.wait_until_closed(today.window(u"f_new_round"_s));
}

void reopen_round(day& today)
{
    today.user.menu(u"mnOPenr"_s);
    today.user.wait_for_window(today.window(u"f_games"_s));
    today.save_picture(u"f_games"_s, u"f_games"_s);
    const int last = static_cast<int>(today.user.entries(u"List1"_s).size()) - 1;
    today.user.double_click_row(u"List1"_s, last);
    today.user.wait_for_window(today.window(u"f_new_round"_s));
    today.user.click_tab(u"TabStrip1"_s, 18);
    today.user.same(today.user.text(u"l_brut"_s), QString::number(today.round.gross()),
                    u"gross of the reopened round"_s);
    today.user.click(u"Command1_2"_s);
    today.answer(u"Voulez vous enregistrer les modifications avant de sortir ? ",
                 u"Do you want to save your changes prior to exit?", QMessageBox::NoIcon,
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::No, QString());
    today.user.wait_until_closed(today.window(u"f_new_round"_s));
}

}  // namespace verdane::guided_day
