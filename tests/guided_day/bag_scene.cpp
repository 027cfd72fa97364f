#include "tests/guided_day/season.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

constexpr int clubs_with_distance = 13;

/// The stored average of a club.
double stored_average(const visit& now, int club)
{
    return now.store.value(u"select avg_%1 from sticks"_s.arg(club)).toDouble();
}

/// The golfer's clubs carry 70 to 225 yards; the averages must be near that.
void check_averages(const visit& now)
{
    for (int club = 1; club <= clubs_with_distance; ++club) {
        const double average = stored_average(now, club);
        now.user.check(average > 20 && average < 250, u"average of club %1: %2"_s.arg(club).arg(average));
    }
}

}  // namespace

void choose_season(visit& now)
{
    const QStringList rounds = now.user.entries(u"List1"_s);
    now.user.same(static_cast<int>(rounds.size()), rounds_of_season, u"rounds to choose from"_s);
    now.user.click_row(u"List1"_s, 0);
    now.user.click_row(u"List2"_s, rounds_of_season - 1);
}

void store_averages(visit& now)
{
    now.user.menu(u"mnBat"_s);
    now.user.wait_for_window(now.window(u"f_sticks"_s));
    now.save_picture(u"f_sticks"_s, u"f_sticks"_s);
    now.user.click(u"Command1"_s);
    choose_season(now);
    now.save_picture(u"f_sticks"_s, u"f_sticks_filters"_s);
    now.user.click(u"Actualiser"_s);
    now.save_picture(u"f_sticks"_s, u"f_sticks_averages"_s);
    now.user.click(u"enr"_s);
    now.answer(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?",
               QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, u"VERDANE"_s);
    now.user.wait_until_closed(now.window(u"f_sticks"_s));
    check_averages(now);
}

}  // namespace verdane::guided_day
