#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

void choose_course(day& today)
{
    const int last = static_cast<int>(today.user.entries(u"cmb_courses"_s).size()) - 1;
    today.user.choose(u"cmb_courses"_s, last);
}

void type_holes(day& today, const played_round& round, int first_hole, int last_hole)
{
    for (int hole = first_hole; hole <= last_hole; ++hole) {
        today.user.click_tab(u"TabStrip1"_s, hole);
        today.user.same(today.user.focus(), u"text_vrd_0"_s, u"focus on a hole"_s);
        today.user.type(round.holes.at(static_cast<std::size_t>(hole - 1)));
        today.user.same(today.user.focus(), u"Command1_4"_s, u"focus after a hole"_s);
    }
}

void enter_costs(day& today, int fee, int meal, const QString& picture)
{
    today.user.click(u"Command2"_s);
    today.user.wait_for_window(today.window(u"f_cost"_s));
    today.user.fill(u"cost_0"_s, QString::number(fee));
    today.user.fill(u"cost_7"_s, QString::number(meal));
    if (!picture.isEmpty())
        today.save_picture(u"f_cost"_s, picture);
    today.user.click(u"OKButton"_s);
    today.user.wait_until_closed(today.window(u"f_cost"_s));
    today.user.same(today.user.text(u"text_7"_s), QString::number(fee + meal), u"costs of the round"_s);
}

void tee_off(day& today, const QString& hours, const QString& minutes, const QString& seconds,
             const QString& picture)
{
    today.user.wait_for_window(u"f_get_date"_s);
    today.user.fill(u"Text1"_s, hours);
    today.user.fill(u"Text2"_s, minutes);
    today.user.fill(u"Text3"_s, seconds);
    if (!picture.isEmpty())
        today.pictures.save_picture(today.user, u"f_get_date"_s, today.twin(picture));
    today.user.click(u"OKbut"_s);
    today.answer(
        u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
        u"You will not be able to change this date afterwards. Do you want to use this date and time? ",
        QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    today.user.wait_until_closed(u"f_get_date"_s);
}

}  // namespace verdane::guided_day
