#include <QTest>

#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

void type_distance(hand& user, const QString& left)
{
    user.type(left);
    user.key(Qt::Key_Return);
}

void expect_cursor(hand& user, const QString& cell, const QString& after)
{
    user.same(user.cursor(details), cell, u"cursor after " + after);
}

/// Enters a drive, an approach and a putt. After the first distance `tabs` Tab keys move the cursor to the
/// kind.
void enter_by_keys(hand& user, const QString& cell_after_distance, int tabs)
{
    user.type(u"d"_s);
    expect_cursor(user, u"0,3"_s, u"the club"_s);
    type_distance(user, u"60"_s);
    expect_cursor(user, cell_after_distance, u"the first distance"_s);
    for (int tab = 0; tab < tabs; ++tab)
        user.key(Qt::Key_Tab);
    user.type(u"l"_s);
    user.key(Qt::Key_N, Qt::ControlModifier);
    user.type(u"s"_s);
    type_distance(user, u"10"_s);
    expect_cursor(user, u"1,5"_s, u"the second distance"_s);
    user.type(u"a"_s);
    user.key(Qt::Key_N, Qt::ControlModifier);
    user.type(u"p"_s);
    type_distance(user, u"4"_s);
    expect_cursor(user, u"3,3"_s, u"the first putt"_s);
}

void open_next_hole(hand& user)
{
    user.key(Qt::Key_PageDown);
    user.same(user.focus(), details, u"focus on the next hole"_s);
}

}  // namespace

class test_keyed_hole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// After a hole that ended in putts the first distance moves the cursor to the unit, not to the kind.
    void two_holes_are_entered_by_keys_one_after_the_other()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.key(Qt::Key_2, Qt::ControlModifier);
            enter_by_keys(user, u"0,5"_s, 0);
            open_next_hole(user);
            enter_by_keys(user, u"0,3"_s, 2);
            accept(user);
        });
        for (const int hole : {1, 2}) {
            QCOMPARE(stored_figures(round.store, hole), entered_figures);
            QCOMPARE(stored_putts(round.store, hole), entered_putts);
        }
    }
};

QTEST_MAIN(test_keyed_hole)

#include "test_keyed_hole.moc"
