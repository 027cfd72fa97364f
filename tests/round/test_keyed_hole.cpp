#include <QTest>

#include "tests/round/round_windows.h"
#include "tests/round/told_shots.h"

using namespace verdane;
using namespace verdane::testing;

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

/// Drive, approach and a putt; `tabs` lead from where the first distance leaves the cursor to the kind.
void tell_by_keys(hand& user, const QString& cell_behind_distance, int tabs)
{
    user.type(QStringLiteral("d"));
    expect_cursor(user, QStringLiteral("0,3"), QStringLiteral("the club"));
    type_distance(user, QStringLiteral("60"));
    expect_cursor(user, cell_behind_distance, QStringLiteral("the first distance"));
    for (int tab = 0; tab < tabs; ++tab)
        user.key(Qt::Key_Tab);
    user.type(QStringLiteral("l"));
    user.key(Qt::Key_N, Qt::ControlModifier);
    user.type(QStringLiteral("s"));
    type_distance(user, QStringLiteral("10"));
    expect_cursor(user, QStringLiteral("1,5"), QStringLiteral("the second distance"));
    user.type(QStringLiteral("a"));
    user.key(Qt::Key_N, Qt::ControlModifier);
    user.type(QStringLiteral("p"));
    type_distance(user, QStringLiteral("4"));
    expect_cursor(user, QStringLiteral("3,3"), QStringLiteral("the first putt"));
}

void go_on_to_the_next_hole(hand& user)
{
    user.key(Qt::Key_PageDown);
    user.same(user.focus(), details, QStringLiteral("focus on the next hole"));
}

}  // namespace

class test_keyed_hole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Behind a hole that ended in putts the first distance leads to the next distance, not to the kind.
    void two_holes_are_told_by_keys_one_after_the_other()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.key(Qt::Key_2, Qt::ControlModifier);
            tell_by_keys(user, QStringLiteral("0,5"), 0);
            go_on_to_the_next_hole(user);
            tell_by_keys(user, QStringLiteral("0,3"), 2);
            accept(user);
        });
        for (const int hole : {1, 2}) {
            QCOMPARE(stored_figures(round.store, hole), told_hole);
            QCOMPARE(stored_putts(round.store, hole), told_putts);
        }
    }
};

QTEST_MAIN(test_keyed_hole)

#include "test_keyed_hole.moc"
