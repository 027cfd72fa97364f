#include "tests/guided_day/keyed_hole.h"

namespace verdane::guided_day {

using namespace Qt::StringLiterals;

namespace {

const QString grid = u"details"_s;

void expect_cursor(const day& today, const QString& cell, const QString& after)
{
    today.user.same(today.user.cursor(grid), cell, u"cursor after " + after);
}

void type_distance(const day& today, const QString& yards)
{
    today.user.type(yards);
    today.user.key(Qt::Key_Return);
}

void tab(const day& today, int times)
{
    for (int step = 0; step < times; ++step)
        today.user.key(Qt::Key_Tab);
}

void next_shot(const day& today)
{
    today.user.key(Qt::Key_N, Qt::ControlModifier);
}

/// One letter is enough if only one entry of the menu begins with it.
void enter_drive(const day& today)
{
    expect_cursor(today, u"0,2"_s, u"the page is opened"_s);
    today.user.type(u"1"_s);
    expect_cursor(today, u"0,3"_s, u"the club"_s);
    type_distance(today, u"150"_s);
    expect_cursor(today, u"0,5"_s, u"the distance"_s);
    today.user.type(u"l"_s);
    next_shot(today);
    expect_cursor(today, u"1,2"_s, u"the next shot"_s);
}

/// The position of the ball is five columns after the kind.
void enter_approach_to_the_right(day& today)
{
    today.user.type(u"9"_s);
    type_distance(today, u"20"_s);
    today.user.type(u"a"_s);
    tab(today, 5);
    today.user.key(Qt::Key_F4);
    today.user.wait_for_menu(u"mAlle"_s);
    today.pictures.save_picture_with_menu(today.user, today.window(u"f_new_round"_s),
                                          today.twin(u"f_details_position_menu"_s));
    today.user.menu_key(Qt::Key_Down);
    today.user.menu_key(Qt::Key_Down);
    today.user.menu_key(Qt::Key_Return);
    next_shot(today);
}

void enter_shot_from_sand(day& today)
{
    today.user.key(Qt::Key_Down, Qt::AltModifier);
    today.user.wait_for_menu(u"mSticks"_s);
    today.pictures.save_picture_with_menu(today.user, today.window(u"f_new_round"_s),
                                          today.twin(u"f_details_menu"_s));
    today.user.menu_type(u"s"_s);
    type_distance(today, u"5"_s);
    today.user.type(u"a"_s);
    tab(today, 3);
    today.user.type(today.words(u"o", u"y"));
    next_shot(today);
}

/// Two clubs begin with a P, so the letter opens the menu, and the second P selects the putter. The following
/// putts need only their distance.
void enter_putts(const day& today)
{
    today.user.type(u"p"_s);
    today.user.wait_for_menu(u"mSticks"_s);
    today.user.menu_type(u"p"_s);
    today.user.menu_key(Qt::Key_Return);
    expect_cursor(today, u"3,3"_s, u"the putter"_s);
    type_distance(today, u"3"_s);
    expect_cursor(today, u"4,3"_s, u"the first putt"_s);
}

/// After a hole that ended in putts the cursor stays in the first distance, two cells before the kind.
void enter_drive_of_second_hole(const day& today)
{
    today.user.type(u"1"_s);
    type_distance(today, u"100"_s);
    expect_cursor(today, u"0,3"_s, u"the first distance of the second hole"_s);
    tab(today, 2);
    today.user.type(u"l"_s);
    today.user.same(today.user.cell(grid, 0, 5), u"Long"_s, u"kind"_s);
}

}  // namespace

/// The last putt needs no distance: leaving the hole completes it.
void enter_hole_by_keys(day& today)
{
    today.user.key(Qt::Key_2, Qt::ControlModifier);
    today.user.same(today.user.focus(), grid, u"focus on the detailed page"_s);
    enter_drive(today);
    enter_approach_to_the_right(today);
    enter_shot_from_sand(today);
    enter_putts(today);
    today.save_picture(u"f_new_round"_s, u"f_details"_s);
    today.user.key(Qt::Key_PageDown);
    today.user.same(today.user.selected(u"cmb_holes"_s), 1, u"hole on screen"_s);
    enter_drive_of_second_hole(today);
}

QString keyed_shots(const day& today)
{
    const QString lines = u"1 %1>150 %2 1W Long\n2 150>20 %2 9I %3\n3 20>15 %4 SW %3\n"
                          u"4 15>3 %4 Pu Putt\n5 3>0 %4 Pu Putt"_s;
    return lines.arg(QString::number(today.card.yards.front()), today.words(u"Verges", u"Yards"),
                     today.words(u"Approche", u"Approach"), today.words(u"Pieds", u"Feets"));
}

}  // namespace verdane::guided_day
