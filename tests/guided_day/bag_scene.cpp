#include "tests/guided_day/season.h"

namespace verdane::guided_day {

namespace {

constexpr int clubs_with_distance = 13;

/// The averages that the store keeps, a club of the bag with each call.
double kept_average(const visit& now, int club)
{
    return now.store.value(QStringLiteral("select avg_%1 from sticks").arg(club)).toDouble();
}

/// The golfer's clubs carry from 70 to 225 yards; what is worked out must be about that.
void check_averages(const visit& now)
{
    for (int club = 1; club <= clubs_with_distance; ++club) {
        const double average = kept_average(now, club);
        now.user.check(average > 20 && average < 250,
                       QStringLiteral("average of club %1: %2").arg(club).arg(average));
    }
}

}  // namespace

void choose_season(visit& now)
{
    const QStringList rounds = now.user.entries(QStringLiteral("List1"));
    now.user.same(static_cast<int>(rounds.size()), rounds_of_season, QStringLiteral("rounds to choose from"));
    now.user.click_row(QStringLiteral("List1"), 0);
    now.user.click_row(QStringLiteral("List2"), rounds_of_season - 1);
}

void keep_averages(visit& now)
{
    now.user.menu(QStringLiteral("mnBat"));
    now.user.wait_for_window(now.window(QStringLiteral("f_sticks")));
    now.keep(QStringLiteral("f_sticks"), QStringLiteral("f_sticks"));
    now.user.click(QStringLiteral("Command1"));
    choose_season(now);
    now.keep(QStringLiteral("f_sticks"), QStringLiteral("f_sticks_filters"));
    now.user.click(QStringLiteral("Actualiser"));
    now.keep(QStringLiteral("f_sticks"), QStringLiteral("f_sticks_averages"));
    now.user.click(QStringLiteral("enr"));
    now.answer(u"Désirez vous conservés ces moyennes ?", u"Do you want to keep these averages ?",
               QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes,
               QStringLiteral("VERDANE"));
    now.user.wait_until_gone(now.window(QStringLiteral("f_sticks")));
    check_averages(now);
}

}  // namespace verdane::guided_day
