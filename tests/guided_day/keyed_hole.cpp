#include "tests/guided_day/keyed_hole.h"

namespace verdane::guided_day {

namespace {

const QString grid = QStringLiteral("details");

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

/// One letter is enough where only one entry of the cell's menu begins with it.
void tell_drive(const day& today)
{
    expect_cursor(today, QStringLiteral("0,2"), QStringLiteral("the page is opened"));
    today.user.type(QStringLiteral("1"));
    expect_cursor(today, QStringLiteral("0,3"), QStringLiteral("the club"));
    type_distance(today, QStringLiteral("150"));
    expect_cursor(today, QStringLiteral("0,5"), QStringLiteral("the distance"));
    today.user.type(QStringLiteral("l"));
    next_shot(today);
    expect_cursor(today, QStringLiteral("1,2"), QStringLiteral("the next shot"));
}

/// From the kind five columns on: where the ball lies.
void tell_approach_to_the_right(day& today)
{
    today.user.type(QStringLiteral("9"));
    type_distance(today, QStringLiteral("20"));
    today.user.type(QStringLiteral("a"));
    tab(today, 5);
    today.user.key(Qt::Key_F4);
    today.user.wait_for_menu(QStringLiteral("mAlle"));
    today.pictures.keep_with_menu(today.user, today.window(QStringLiteral("f_new_round")),
                                  today.twin(QStringLiteral("f_details_position_menu")));
    today.user.menu_key(Qt::Key_Down);
    today.user.menu_key(Qt::Key_Down);
    today.user.menu_key(Qt::Key_Return);
    next_shot(today);
}

void tell_shot_from_sand(day& today)
{
    today.user.key(Qt::Key_Down, Qt::AltModifier);
    today.user.wait_for_menu(QStringLiteral("mSticks"));
    today.pictures.keep_with_menu(today.user, today.window(QStringLiteral("f_new_round")),
                                  today.twin(QStringLiteral("f_details_menu")));
    today.user.menu_type(QStringLiteral("s"));
    type_distance(today, QStringLiteral("5"));
    today.user.type(QStringLiteral("a"));
    tab(today, 3);
    today.user.type(today.words(u"o", u"y"));
    next_shot(today);
}

/// Two clubs begin with a P, so the letter opens the menu and comes to the putter with its second stroke.
/// From there on distances are all there is to tell.
void tell_putts(const day& today)
{
    today.user.type(QStringLiteral("p"));
    today.user.wait_for_menu(QStringLiteral("mSticks"));
    today.user.menu_type(QStringLiteral("p"));
    today.user.menu_key(Qt::Key_Return);
    expect_cursor(today, QStringLiteral("3,3"), QStringLiteral("the putter"));
    type_distance(today, QStringLiteral("3"));
    expect_cursor(today, QStringLiteral("4,3"), QStringLiteral("the first putt"));
}

/// Behind a hole that ended in putts the first distance leads back to itself, two cells ahead of the kind.
void begin_the_second_hole(const day& today)
{
    today.user.type(QStringLiteral("1"));
    type_distance(today, QStringLiteral("100"));
    expect_cursor(today, QStringLiteral("0,3"), QStringLiteral("the first distance of the second hole"));
    tab(today, 2);
    today.user.type(QStringLiteral("l"));
    today.user.same(today.user.cell(grid, 0, 5), QStringLiteral("Long"), QStringLiteral("kind"));
}

}  // namespace

/// Leaving the hole is its end: the last putt, of which nothing is left, need not be told.
void tell_hole_by_keys(day& today)
{
    today.user.key(Qt::Key_2, Qt::ControlModifier);
    today.user.same(today.user.focus(), grid, QStringLiteral("focus on the detailed page"));
    tell_drive(today);
    tell_approach_to_the_right(today);
    tell_shot_from_sand(today);
    tell_putts(today);
    today.keep(QStringLiteral("f_new_round"), QStringLiteral("f_details"));
    today.user.key(Qt::Key_PageDown);
    today.user.same(today.user.selected(QStringLiteral("cmb_holes")), 1, QStringLiteral("hole on screen"));
    begin_the_second_hole(today);
}

QString keyed_shots(const day& today)
{
    const QString lines = QStringLiteral("1 %1>150 %2 1W Long\n2 150>20 %2 9I %3\n3 20>15 %4 SW %3\n"
                                         "4 15>3 %4 Pu Putt\n5 3>0 %4 Pu Putt");
    return lines.arg(QString::number(today.card.yards.front()), today.words(u"Verges", u"Yards"),
                     today.words(u"Approche", u"Approach"), today.words(u"Pieds", u"Feets"));
}

}  // namespace verdane::guided_day
