#include <QTest>

#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

constexpr int last_hole = 18;

/// Adds a round with a shot on each hole, so that leaving a hole shows no message.
void add_round_with_shots(const golfer_store& round)
{
    round.store.add_round(key_of_keyed_round());
    for (int hole = 1; hole <= last_hole; ++hole)
        add_complete_shot(round.store, hole, 1, 1, 60, u"Verges"_s, 1);
}

/// Selects a hole with the arrow keys. On the detailed page the grid takes the focus at each hole, so the
/// hole must be the next one there.
void choose_by_list(hand& user, int hole)
{
    user.choose(u"cmb_holes"_s, hole - 1);
}

void choose_by_tab(hand& user, int hole)
{
    user.click_tab(hole_tabs, hole);
}

void end_of_round_is_visible(hand& user, bool visible)
{
    user.same(user.visible(u"b_carte"_s), visible, u"b_carte"_s);
    user.same(user.visible(u"Frame7"_s), visible, u"Frame7"_s);
}

}  // namespace

class test_last_hole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_button_is_visible_whichever_control_selects_the_last_hole_data()
    {
        QTest::addColumn<bool>("by_list");
        QTest::newRow("the list of holes") << true;
        QTest::newRow("the hole tabs") << false;
    }
    void the_button_is_visible_whichever_control_selects_the_last_hole()
    {
        QFETCH(bool, by_list);
        const golfer_store round;
        add_round_with_shots(round);
        const auto choose = by_list ? choose_by_list : choose_by_tab;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.click_tab(hole_tabs, last_hole - 1);
            open_detailed_page(user);
            end_of_round_is_visible(user, false);
            choose(user, last_hole);
            end_of_round_is_visible(user, true);
            choose(user, last_hole - 1);
            end_of_round_is_visible(user, false);
            open_quick_page(user);
            choose(user, last_hole);
            open_detailed_page(user);
            end_of_round_is_visible(user, true);
            open_quick_page(user);
            choose(user, last_hole - 1);
            open_detailed_page(user);
            end_of_round_is_visible(user, false);
            open_quick_page(user);
            discard(user);
        });
    }

    void the_button_is_hidden_when_the_other_control_selects_another_hole()
    {
        const golfer_store round;
        add_round_with_shots(round);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            open_detailed_page(user);
            choose_by_tab(user, last_hole);
            choose_by_list(user, last_hole - 1);
            end_of_round_is_visible(user, false);
            choose_by_list(user, last_hole);
            end_of_round_is_visible(user, true);
            choose_by_tab(user, 1);
            end_of_round_is_visible(user, false);
            open_quick_page(user);
            discard(user);
        });
    }
};

QTEST_MAIN(test_last_hole)

#include "test_last_hole.moc"
