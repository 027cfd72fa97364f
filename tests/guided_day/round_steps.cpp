#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

void choose_course(day& today)
{
    const int last = static_cast<int>(today.user.entries(QStringLiteral("cmb_courses")).size()) - 1;
    today.user.choose(QStringLiteral("cmb_courses"), last);
}

void type_holes(day& today, const played_round& round, int first_hole, int last_hole)
{
    for (int hole = first_hole; hole <= last_hole; ++hole) {
        today.user.click_tab(QStringLiteral("TabStrip1"), hole);
        today.user.same(today.user.focus(), QStringLiteral("text_vrd_0"), QStringLiteral("focus on a hole"));
        today.user.type(round.holes.at(static_cast<std::size_t>(hole - 1)));
        today.user.same(today.user.focus(), QStringLiteral("Command1_4"),
                        QStringLiteral("focus after a hole"));
    }
}

void keep_costs(day& today, int fee, int meal, const QString& picture)
{
    today.user.click(QStringLiteral("Command2"));
    today.user.wait_for_window(today.window(QStringLiteral("f_cost")));
    today.user.fill(QStringLiteral("cost_0"), QString::number(fee));
    today.user.fill(QStringLiteral("cost_7"), QString::number(meal));
    if (!picture.isEmpty())
        today.keep(QStringLiteral("f_cost"), picture);
    today.user.click(QStringLiteral("OKButton"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_cost")));
    today.user.same(today.user.text(QStringLiteral("text_7")), QString::number(fee + meal),
                    QStringLiteral("costs of the round"));
}

void tee_off(day& today, const QString& hours, const QString& minutes, const QString& seconds,
             const QString& picture)
{
    today.user.wait_for_window(QStringLiteral("f_get_date"));
    today.user.fill(QStringLiteral("Text1"), hours);
    today.user.fill(QStringLiteral("Text2"), minutes);
    today.user.fill(QStringLiteral("Text3"), seconds);
    if (!picture.isEmpty())
        today.pictures.keep(today.user, QStringLiteral("f_get_date"), today.twin(picture));
    today.user.click(QStringLiteral("OKbut"));
    today.answer(
        u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
        u"You will not be able to change this date afterwards. Do you want to use this date and time? ",
        QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    today.user.wait_until_gone(QStringLiteral("f_get_date"));
}

}  // namespace verdane::guided_day
