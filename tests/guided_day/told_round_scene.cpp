#include <vector>

#include "tests/guided_day/day.h"
#include "tests/guided_day/keyed_hole.h"
#include "tests/guided_day/report_prints.h"
#include "tests/guided_day/round_steps.h"

namespace verdane::guided_day {

namespace {

/// A shot told by clicks: the club's and the kind's place in their menus, and what is left to the hole.
struct told_shot {
    int club;
    QString left;
    int kind;  ///< 0: a putt, which needs no telling
};

const QString grid = QStringLiteral("details");
constexpr int club_column = 2;
constexpr int kind_column = 5;
constexpr int penalty_column = 11;

void tell(day& today, int row, const told_shot& shot)
{
    today.user.open_menu(grid, row, club_column);
    today.user.choose_menu_entry(QStringLiteral("ms1_%1").arg(shot.club));
    today.user.type(shot.left);
    today.user.key(Qt::Key_Return);
    if (shot.kind == 0)
        return;
    today.user.open_menu(grid, row, kind_column);
    today.user.choose_menu_entry(QStringLiteral("mshots_%1").arg(shot.kind));
}

/// With the mouse: the last putt, which opens by itself, goes into the hole.
void tell_hole_by_clicks(day& today, const std::vector<told_shot>& shots)
{
    for (int row = 0; row < static_cast<int>(shots.size()); ++row) {
        if (row > 0)
            today.user.click(QStringLiteral("CommandSuiv"));
        tell(today, row, shots.at(static_cast<std::size_t>(row)));
    }
}

void tell_second_and_third_hole(day& today)
{
    tell_hole_by_clicks(
        today, {{2, QStringLiteral("90"), 1}, {12, QStringLiteral("4"), 2}, {14, QStringLiteral("2"), 0}});
    today.user.click_tab(QStringLiteral("TabStrip1"), 3);
    tell_hole_by_clicks(today, {{1, QStringLiteral("140"), 1}});
    today.user.open_menu(grid, 0, penalty_column);
    today.user.choose_menu_entry(QStringLiteral("mp_1"));
    today.user.click(QStringLiteral("CommandSuiv"));
    tell(today, 1, {8, QStringLiteral("6"), 2});
    today.user.click(QStringLiteral("CommandSuiv"));
    tell(today, 2, {14, QStringLiteral("4"), 0});
    today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_details_told"));
}

/// The first partner of the list comes along.
void take_partner_along(day& today)
{
    today.user.click_row(QStringLiteral("pList"), 0);
}

void check_shots(const day& today)
{
    const QString of_hole =
        QStringLiteral(" from Stat_rounds where date = '%1' and hole = ").arg(today.told_round.key());
    QStringList lines;
    for (const auto& row : today.store.rows(
             QStringLiteral(
                 "select shot || ' ' || before || '>' || after || ' ' || unit || ' ' || stick || ' ' "
                 "|| shot_type") +
             of_hole + u"1 order by shot"))
        lines << row.front().toString();
    today.user.same(lines.join(u'\n'), keyed_shots(today), QStringLiteral("shots of the first hole"));
    today.user.same(today.store.number(u"select count(*)" + of_hole + u'2'), 4,
                    QStringLiteral("shots of hole 2"));
    today.user.same(today.store.number(u"select count(*)" + of_hole + u'3'), 4,
                    QStringLiteral("shots of hole 3"));
    today.user.same(today.store.text(QStringLiteral("select putt_len_1_1 || ' ' || putt_len_1_2 from games2 "
                                                    "where date = '%1'")
                                         .arg(today.told_round.key())),
                    QStringLiteral("15 3"), QStringLiteral("lengths of the putts"));
}

void check_company_and_costs(const day& today)
{
    const QString key = today.told_round.key();
    today.user.same(
        today.store.number(QStringLiteral("select count(*) from games2, partners where date = '%1' and "
                                          "instr(games2.PARTNERS, partners.code)")
                               .arg(key)),
        1, QStringLiteral("partners of the round"));
    today.user.same(
        today.store.number(QStringLiteral("select fg * 1000 + nrt from cost where date = '%1'").arg(key)),
        60015, QStringLiteral("costs of the told round"));
}

}  // namespace

void tell_round(day& today)
{
    const played_round& round = today.told_round;
    today.user.menu(QStringLiteral("mOpen"));
    tee_off(today, round.hours, round.minutes, round.seconds);
    today.user.wait_for_window(today.window(QStringLiteral("f_new_round")));
    choose_course(today);
    today.user.click(QStringLiteral("text_vrd_0"));
    tell_hole_by_keys(today);
    tell_second_and_third_hole(today);
    today.user.click(QStringLiteral("b_putts"));
    keep_report(today, QStringLiteral("round_putts"));
    today.user.click_tab(QStringLiteral("TabStrip2"), 1);
    today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_details_counts"));
    take_partner_along(today);
    type_holes(today, round, 4, 18);
    keep_costs(today, 60, 15);
    today.user.same(today.user.text(QStringLiteral("l_brut")), QString::number(round.gross()),
                    QStringLiteral("gross of the told round"));
    today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_new_round_told_18"));
    today.user.click(QStringLiteral("Command1_4"));
    today.user.wait_until_gone(today.window(QStringLiteral("f_new_round")));
    check_round(today, round);
    check_shots(today);
    check_company_and_costs(today);
}

}  // namespace verdane::guided_day
