#include "day.h"

#include "hand_widgets.h"
#include "TabStrip.h"

namespace verdane::guided_day {

namespace {

/// The course just described stands last in the list.
void choose_course(day& today)
{
    const int last = static_cast<int>(today.user.entries(QStringLiteral("cmb_courses")).size()) - 1;
    today.user.choose(QStringLiteral("cmb_courses"), last);
}

void tell_holes(day& today)
{
    for (int hole = 1; hole <= 18; ++hole) {
        today.user.click_tab(QStringLiteral("TabStrip1"), hole);
        today.user.same(today.user.focus(), QStringLiteral("text_vrd_0"), QStringLiteral("focus on a hole"));
        today.user.type(today.round.holes.at(static_cast<std::size_t>(hole - 1)));
        today.user.same(today.user.focus(), QStringLiteral("Command1_4"),
                        QStringLiteral("focus after a hole"));
        if (hole == 4)
            today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_new_round"));
    }
}

/// What the round cost: its total is seen in the round window.
void keep_costs(day& today)
{
    today.user.click(QStringLiteral("Command2"));
    today.user.wait_for_window(today.window(QStringLiteral("f_cost")));
    today.user.fill(QStringLiteral("cost_0"), QStringLiteral("85"));
    today.user.fill(QStringLiteral("cost_7"), QStringLiteral("20"));
    today.keep(QStringLiteral("f_cost"), QStringLiteral("f_cost"));
    today.user.click(QStringLiteral("OKButton"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_cost")));
    today.user.same(today.user.text(QStringLiteral("text_7")), QStringLiteral("105"),
                    QStringLiteral("costs of the round"));
}

}  // namespace

void tee_off(day& today, const QString& hours, const QString& minutes, const QString& seconds)
{
    today.user.wait_for_window(QStringLiteral("f_get_date"));
    today.user.fill(QStringLiteral("Text1"), hours);
    today.user.fill(QStringLiteral("Text2"), minutes);
    today.user.fill(QStringLiteral("Text3"), seconds);
    today.pictures.keep(QStringLiteral("f_get_date"),
                        today.french ? QStringLiteral("f_get_date_fr") : QStringLiteral("f_get_date_en"));
    today.user.click(QStringLiteral("OKbut"));
    today.answer(
        u"Cette date est définitive. Êtes vous sûr de la date et l'heure enregistrée ? ",
        u"You will not be able to change this date afterwards. Do you want to use this date and time? ",
        QMessageBox::NoIcon, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
    today.user.wait_until_gone(QStringLiteral("f_get_date"));
}

void play_round(day& today)
{
    today.user.menu(QStringLiteral("mOpen"));
    tee_off(today, today.round.hours, today.round.minutes, today.round.seconds);
    today.user.wait_for_window(today.window(QStringLiteral("f_new_round")));
    choose_course(today);
    today.user.choose(QStringLiteral("conditions"), today.french ? 1 : 3);
    tell_holes(today);
    keep_costs(today);
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

void check_store(day& today)
{
    const QString where = QStringLiteral(" where date = '%1'").arg(today.round.key());
    today.user.same(today.store.number(u"select count(*) from games" + where), 1,
                    QStringLiteral("rows of games"));
    const QStringList columns{QStringLiteral("long_%1"), QStringLiteral("approach_%1"),
                              QStringLiteral("putt_%1")};
    for (int hole = 1; hole <= 18; ++hole) {
        for (int place = 0; place < columns.size(); ++place) {
            const QString column = columns.at(place).arg(hole);
            today.user.same(today.store.number(u"select " + column + u" from games" + where),
                            today.round.figure(hole, place), column);
        }
    }
    today.user.same(today.store.number(u"select fg * 1000 + nrt from cost" + where), 85020,
                    QStringLiteral("costs of the round"));
    today.user.same(today.store.text(u"select field from games" + where), today.card.name,
                    QStringLiteral("course of the round"));
    today.user.same(today.store.number(u"select conditionM from games2" + where), today.french ? 1 : 3,
                    QStringLiteral("weather of the round"));
    today.user.same(today.store.number(QStringLiteral("select all_holes from stats where rowid = 1")),
                    today.round.gross(), QStringLiteral("strokes in the report"));
}

}  // namespace verdane::guided_day
