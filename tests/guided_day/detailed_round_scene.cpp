#include <vector>

#include "tests/guided_day/day.h"
#include "tests/guided_day/keyed_hole.h"
#include "tests/guided_day/report_prints.h"
#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

/// A shot entered by clicks: the entries of club and kind in their menus, and the distance left.
struct entered_shot {
    int club;
    QString left;
    int kind;  ///< 0: a putt, which has its kind already
};

const QString grid = u"details"_s;
constexpr int club_column = 2;
constexpr int kind_column = 5;
constexpr int penalty_column = 11;

void enter_shot(day& today, int row, const entered_shot& shot)
{
    today.user.open_menu(grid, row, club_column);
    today.user.choose_menu_entry(u"ms1_%1"_s.arg(shot.club));
    today.user.type(shot.left);
    today.user.key(Qt::Key_Return);
    if (shot.kind == 0)
        return;
    today.user.open_menu(grid, row, kind_column);
    today.user.choose_menu_entry(u"mshots_%1"_s.arg(shot.kind));
}

/// Enters shots with the mouse. The last putt is added by the program.
void enter_hole_by_clicks(day& today, const std::vector<entered_shot>& shots)
{
    for (int row = 0; row < static_cast<int>(shots.size()); ++row) {
        if (row > 0)
            today.user.click(u"CommandSuiv"_s);
        enter_shot(today, row, shots.at(static_cast<std::size_t>(row)));
    }
}

void enter_second_and_third_hole(day& today)
{
    enter_hole_by_clicks(today, {{2, u"90"_s, 1}, {12, u"4"_s, 2}, {14, u"2"_s, 0}});
    today.user.click_tab(u"TabStrip1"_s, 3);
    enter_hole_by_clicks(today, {{1, u"140"_s, 1}});
    today.user.open_menu(grid, 0, penalty_column);
    today.user.choose_menu_entry(u"mp_1"_s);
    today.user.click(u"CommandSuiv"_s);
    enter_shot(today, 1, {8, u"6"_s, 2});
    today.user.click(u"CommandSuiv"_s);
    enter_shot(today, 2, {14, u"4"_s, 0});
    today.save_picture(u"f_new_round"_s, u"f_details_entered"_s);
}

/// Selects the first partner of the list.
void select_partner(day& today)
{
    today.user.click_row(u"pList"_s, 0);
}

void check_shots(const day& today)
{
    const QString of_hole =
        u" from Stat_rounds where date = '%1' and hole = "_s.arg(today.detailed_round.key());
    QStringList lines;
    for (const auto& row : today.store.rows(
             u"select shot || ' ' || before || '>' || after || ' ' || unit || ' ' || stick || ' ' "
             u"|| shot_type"_s +
             of_hole + u"1 order by shot"))
        lines << row.front().toString();
    today.user.same(lines.join(u'\n'), keyed_shots(today), u"shots of the first hole"_s);
    today.user.same(today.store.number(u"select count(*)" + of_hole + u'2'), 4, u"shots of hole 2"_s);
    today.user.same(today.store.number(u"select count(*)" + of_hole + u'3'), 4, u"shots of hole 3"_s);
    today.user.same(today.store.text(u"select putt_len_1_1 || ' ' || putt_len_1_2 from games2 "
                                     u"where date = '%1'"_s.arg(today.detailed_round.key())),
                    u"15 3"_s, u"lengths of the putts"_s);
}

void check_partner_and_costs(const day& today)
{
    const QString key = today.detailed_round.key();
    today.user.same(today.store.number(u"select count(*) from games2, partners where date = '%1' and "
                                       u"instr(games2.PARTNERS, partners.code)"_s.arg(key)),
                    1, u"partners of the round"_s);
    today.user.same(today.store.number(u"select fg * 1000 + nrt from cost where date = '%1'"_s.arg(key)),
                    60015, u"costs of the detailed round"_s);
}

}  // namespace

void enter_detailed_round(day& today)
{
    const played_round& round = today.detailed_round;
    today.user.menu(u"mOpen"_s);
    tee_off(today, round.hours, round.minutes, round.seconds);
    today.user.wait_for_window(today.window(u"f_new_round"_s));
    choose_course(today);
    today.user.click(u"text_vrd_0"_s);
    enter_hole_by_keys(today);
    enter_second_and_third_hole(today);
    today.user.click(u"b_putts"_s);
    save_report(today, u"round_putts"_s);
    today.user.click_tab(u"TabStrip2"_s, 1);
    today.save_picture(u"f_new_round"_s, u"f_details_counts"_s);
    select_partner(today);
    type_holes(today, round, 4, 18);
    enter_costs(today, 60, 15);
    today.user.same(today.user.text(u"l_brut"_s), QString::number(round.gross()),
                    u"gross of the detailed round"_s);
    today.save_picture(u"f_new_round"_s, u"f_new_round_detailed_18"_s);
    today.user.click(u"Command1_4"_s);
    today.user.wait_until_closed(today.window(u"f_new_round"_s));
    check_round(today, round);
    check_shots(today);
    check_partner_and_costs(today);
}

}  // namespace verdane::guided_day
