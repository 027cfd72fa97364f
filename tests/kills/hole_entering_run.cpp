#include "tests/kills/hole_entering_run.h"

#include <QApplication>
#include <QRandomGenerator>

#include "base/language.h"
#include "records/Main_module.h"
#include "scoring/words.h"
#include "shell/start_up.h"
#include "tests/kills/run_log.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

const QString grid = u"details"_s;
const QString hole_tabs = u"TabStrip1"_s;
constexpr int last_hole = 18;
/// The round opens on the first hole: shots of it that a kill left unfinished would keep the window open.
constexpr int first_detailed_hole = 2;

namespace column {
enum { number = 1, club = 2, kind = 5, sand = 8, position = 10, penalty = 11 };
}

void choose(hand& user, int row, int column, const QString& entry)
{
    user.open_menu(grid, row, column);
    user.choose_menu_entry(entry);
}

bool is_blank(hand& user)
{
    return user.grid_rows(grid) == 1 && user.cell(grid, 0, column::club).isEmpty();
}

/// Removes the shots of the hole. The last one first, so that no check refuses the removal.
void clear_hole(hand& user)
{
    if (is_blank(user))
        return;
    for (int rows = user.grid_rows(grid); rows > 0; rows = user.grid_rows(grid)) {
        user.click_cell(grid, rows - 1, column::number);
        user.click(u"CommandSup"_s);
    }
    user.click(u"CommandSuiv"_s);
}

void type_distance(hand& user, const entered_shot& shot)
{
    if (shot.distance == 0)
        return;
    user.type(QString::number(shot.distance));
    user.key(Qt::Key_Return);
}

void enter_shot(hand& user, int row, const entered_shot& shot)
{
    choose(user, row, column::club, u"ms1_%1"_s.arg(shot.club));
    type_distance(user, shot);
    if (shot.kind == putt)
        return;
    choose(user, row, column::kind, u"mshots_%1"_s.arg(shot.kind));
    if (shot.position != in_the_fairway)
        choose(user, row, column::position, u"ma_%1"_s.arg(shot.position));
    if (shot.penalty != 0)
        choose(user, row, column::penalty, u"mp_%1"_s.arg(shot.penalty));
    if (shot.sand)
        choose(user, row, column::sand, u"mb_0"_s);
}

/// After the first putt the program adds the rows, with the putter chosen.
void enter_hole_shots(hand& user, int hole, const entered_hole& shots)
{
    for (std::size_t i = 0; i < shots.size(); ++i) {
        const bool added_by_program = i > 0 && shots[i - 1].kind == putt;
        if (added_by_program)
            type_distance(user, shots[i]);
        else
            enter_shot(user, static_cast<int>(i), shots[i]);
        if (i + 1 == shots.size())
            break;
        if (shots[i].kind != putt)
            user.click(u"CommandSuiv"_s);
        log_entered(hole, static_cast<int>(i) + 1);
    }
}

/// Each save uses one of the 366 entries for keys until the program ends, and the test saves more often.
void reset_round_keys(hand& user)
{
    user.look([] {
        if (Main_module::round_key_count > 300)
            Main_module::round_key_count = 1;
    });
}

void enter_shots_until_killed(hand& user, quint32 seed)
{
    QRandomGenerator random(seed);
    int hole = random.bounded(first_detailed_hole, last_hole + 1);
    user.click_tab(hole_tabs, hole);
    user.click_tab(u"TabStrip2"_s, 2);
    for (;;) {
        const entered_hole shots = random_hole(random);
        log_entering(hole, shots);
        clear_hole(user);
        enter_hole_shots(user, hole, shots);
        const int next = hole == last_hole ? first_detailed_hole : hole + 1;
        user.click_tab(hole_tabs, next);
        log_left(hole);
        hole = next;
        reset_round_keys(user);
    }
}

QString random_figures(QRandomGenerator& random)
{
    QString figures;
    for (int place = 0; place < figures_of_a_hole; ++place)
        figures += QString::number(random.bounded(10));
    return figures;
}

void type_until_killed(hand& user, quint32 seed)
{
    QRandomGenerator random(seed);
    for (int hole = 1;; hole = hole % last_hole + 1) {
        user.click_tab(hole_tabs, hole);
        const QString figures = random_figures(random);
        user.type(figures);
        log_typed(hole, figures);
        user.click_tab(hole_tabs, hole % last_hole + 1);
        log_left(hole);
        reset_round_keys(user);
    }
}

}  // namespace

int run_entering_holes(bool detailed, quint32 seed)
{
    int status = -1;
    play([&] { status = run_verdane(*qApp); },
         [detailed, seed](hand& user) {
             open_the_round(user);
             if (detailed)
                 enter_shots_until_killed(user, seed);
             else
                 type_until_killed(user, seed);
         });
    return status;
}

void enter_shots(hand& user, int hole, const entered_hole& shots)
{
    enter_hole_shots(user, hole, shots);
}

void open_the_round(hand& user)
{
    user.wait_for_window(u"MainForm"_s);
    user.menu(u"mnOPenr"_s);
    user.wait_for_window(in_language(u"f_games", u"f_games_en"));
    user.double_click_row(u"List1"_s, 0);
    user.wait_for_window(round_window_name());
}

QString round_window_name()
{
    return in_language(u"f_new_round", u"f_new_round_en");
}

}  // namespace verdane::testing
