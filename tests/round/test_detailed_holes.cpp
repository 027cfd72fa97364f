#include <QComboBox>
#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/round_windows.h"
#include "tests/round/told_shots.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString nothing = u"0 0 0 0 0 0 0 0 0 0 0"_s;

/// Opens the round of the store on its detailed page and takes it away as it stands.
void in_told_round(const std::function<void(hand&)>& script)
{
    in_stored_round(key_of_keyed_round(), [&](hand& user) {
        go_to_detailed_page(user);
        script(user);
        with_round(user, [](f_new_round& window) { window.unload(); });
    });
}

bool is_detailed(hand& user)
{
    bool detailed = false;
    with_round(user, [&](f_new_round& window) { detailed = window.isdetailed; });
    return detailed;
}

}  // namespace

class test_detailed_holes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_hole_tab_is_refused_twice_where_a_shot_is_incomplete_data() { both_languages(); }
    void a_hole_tab_is_refused_twice_where_a_shot_is_incomplete()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(u" 2"_s));
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(user.selected(hole_tabs), 0, u"tab"_s);
            user.same(user.grid_rows(details), 2, u"rows"_s);
            user.choose(u"cmb_courses"_s, 0);
            tell_shot(user, 1, 9, QString(), 2);
            user.click_tab(hole_tabs, 2);
            user.same(user.selected(hole_tabs), 1, u"tab"_s);
            go_to_quick_page(user);
            discard(user);
        });
    }

    void a_blank_hole_is_left_with_one_message_and_has_no_rows_data() { both_languages(); }
    void a_blank_hole_is_left_with_one_message_and_has_no_rows()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(u" 1"_s));
            user.wait_for_window(round_window());
            user.same(user.selected(hole_tabs), 1, u"tab"_s);
            user.same(user.cell(details, 0, 1), u"1"_s, u"a blank shot"_s);
            user.same(round.shots(1), 0, u"shots of hole 1"_s);
            user.click_tab(hole_tabs, 1);
            user.answer(refusal_of_shot(u" 1"_s));
            user.same(round.shots(1), 1, u"a new blank shot of hole 1"_s);
            go_to_quick_page(user);
            user.same(round.shots(1), 0, u"shots of hole 1"_s);
            discard(user);
        });
    }

    void holes_are_told_one_after_the_other_and_come_back()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.click_tab(hole_tabs, 2);
            tell_shot(user, 0, 1, u"0"_s, 2);
            user.click_tab(hole_tabs, 1);
            user.same(user.grid_rows(details), 4, u"rows of hole 1"_s);
            user.same(user.cursor(details), u"0,2"_s, u"cursor"_s);
            user.same(boxes(user), told_hole, u"boxes of hole 1"_s);
            user.same(stored_figures(round.store, 2), u"0 1 0 1 0 0 0 0 0 0 0"_s, u"hole 2"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
        QVERIFY(stored_shots(round.store, 2).endsWith(u"cal"));
    }

    void the_list_of_holes_leads_on_like_the_tabs()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.choose(u"cmb_holes"_s, 1);
            user.same(user.selected(hole_tabs), 1, u"tab"_s);
            user.same(user.grid_rows(details), 1, u"rows of hole 2"_s);
            user.same(boxes(user), nothing, u"boxes of hole 2"_s);
            go_to_quick_page(user);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
    }

    void the_list_of_holes_stays_where_the_tabs_would()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            user.look([] {
                dynamic_cast<QComboBox&>(*open_form(u"f_new_round")->findChild<QComboBox*>(u"cmb_holes"_s))
                    .setFocus();
            });
            user.key(Qt::Key_Down);
            user.answer(refusal_of_shot(u" 2"_s));
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(user.selected(u"cmb_holes"_s), 0, u"list"_s);
            user.same(user.selected(hole_tabs), 0, u"tab"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void a_hole_change_on_the_quick_page_leaves_the_shots_alone()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.click_tab(hole_tabs, 5);
            user.type(u"3"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_figures(round.store, 5).left(5), u"3 0 0"_s);
        QCOMPARE(stored_putts(round.store, 5), u"0 0 0 0 0 0"_s);
        // The first shot keeps the length of its own hole.
        QCOMPARE(round.store.number(u"select before from Stat_rounds where shot = 1"_s), 101);
    }

    void an_incomplete_hole_left_by_the_quick_page_still_stops_OK()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            go_to_quick_page(user);
            user.answer(refusal_of_shot(u" 2"_s));
            user.check(user.visible(u"text_vrd_0"_s), u"the quick page"_s);
            user.same(boxes(user), u"1 0 0 1 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.click(ok_button);
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            go_to_detailed_page(user);
            tell_shot(user, 1, 9, QString(), 2);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 0 2 0 0 0 0 0 0 0"_s);
    }

    void quick_figures_are_lost_where_a_blank_hole_is_left_by_a_tab()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"11211112222"_s);
            go_to_detailed_page(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(u" 1"_s));
            user.check(!is_detailed(user), u"isdetailed"_s);
            go_to_quick_page(user);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), nothing);
    }

    void a_first_shot_that_lacks_its_kind_goes_with_the_quick_page()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"11200001000"_s);
            go_to_detailed_page(user);
            tell_shot(user, 0, 1, u"60"_s, 0);
            go_to_quick_page(user);
            user.same(round.shots(1), 0, u"shots"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 2 0 0 0 0 1 0 0 0"_s);
    }

    void going_back_and_forth_turns_no_distance_again_data() { both_languages(); }
    void going_back_and_forth_turns_no_distance_again()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            const QString told = stored_shots(round.store, 1);
            user.check(told.contains(u">30 "_s), u"the approach in feet"_s);
            for (int times = 0; times < 3; ++times) {
                go_to_detailed_page(user);
                user.click_tab(hole_tabs, 2);
                user.click_tab(hole_tabs, 1);
                user.answer(refusal_of_shot(u" 1"_s));
                user.wait_for_window(round_window());
                go_to_quick_page(user);
            }
            user.same(stored_shots(round.store, 1), told, u"the shots"_s);
            accept(user);
        });
    }

    void seven_putts_keep_six_lengths()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_shot(user, 0, 9, u"30"_s, 2);
            user.click(u"CommandSuiv"_s);
            user.type(u"p"_s);
            for (const char* left : {"9", "8", "7", "6", "5", "4"}) {
                user.type(QString::fromLatin1(left));
                user.key(Qt::Key_Return);
            }
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"0 1 7 1 0 0 0 0 0 0 0"_s);
        QCOMPARE(stored_putts(round.store, 1), u"90 9 8 7 6 5"_s);
    }

    void a_shorter_list_of_putts_leaves_no_length_of_the_longer_one()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        const QList<int> rests{25, 12, 6, 3, 0};
        for (int i = 0; i < rests.size(); ++i)
            add_told_shot(round.store, 1, i + 1, i == 0 ? 9 : 14, rests[i], u"Pieds"_s, i == 0 ? 2 : 3);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            go_to_detailed_page(user);
            accept(user);
        });
        QCOMPARE(stored_putts(round.store, 1), u"25 12 6 3 0 0"_s);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            go_to_detailed_page(user);
            for (const int last : {4, 3}) {
                user.click_cell(details, last, 3);
                user.click(u"CommandSup"_s);
                user.same(user.grid_rows(details), last, u"rows"_s);
            }
            accept(user);
        });
        QCOMPARE(stored_putts(round.store, 1), u"25 12 0 0 0 0"_s);
        QCOMPARE(stored_figures(round.store, 1), u"0 1 2 1 0 0 0 0 0 0 0"_s);
    }

    void a_hole_that_lost_its_shots_is_stored_as_nothing()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.check(is_detailed(user), u"isdetailed"_s);
            accept(user);
        });
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            go_to_detailed_page(user);
            for (int shots = 4; shots > 0; --shots)
                user.click(u"CommandSup"_s);
            accept(user);
        });
        QCOMPARE(round.shots(1), 0);
        QCOMPARE(stored_figures(round.store, 1), nothing);
        QCOMPARE(stored_putts(round.store, 1), u"0 0 0 0 0 0"_s);
    }

    void the_next_shot_comes_though_one_further_up_is_incomplete()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_told_shot(round.store, 1, 1, 1, 60, u"Verges"_s, 1);
        add_shot(round.store, 1, 2, u"after = 5"_s);
        add_told_shot(round.store, 1, 3, 9, 3, u"Verges"_s, 2);
        in_told_round([&](hand& user) {
            with_round(user, [](f_new_round& window) { window.PUT_MODE = true; });
            user.click(u"CommandSuiv"_s);
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(user.cursor(details), u"3,2"_s, u"cursor"_s);
            with_round(user, [](f_new_round& window) { QVERIFY(!window.PUT_MODE); });
        });
        QCOMPARE(stored_shots(round.store, 1).split(u'\n').last(), u"4 3>- - -/0 -/0"_s);
    }

    void a_distance_typed_anew_ahead_of_a_putt_is_in_yards_and_turns_again()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_told_shot(round.store, 1, 1, 9, 90, u"Pieds"_s, 2);
        add_told_shot(round.store, 1, 2, 14, 0, u"Pieds"_s, 3);
        in_told_round([&](hand& user) {
            user.click_cell(details, 0, 3);
            user.type(u"12"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 3) + user.cell(details, 0, 4), u"12Verges"_s, u"as typed"_s);
            go_to_quick_page(user);
        });
        QCOMPARE(stored_shots(round.store, 1).section(u'\n', 0, 0), u"1 101>36 Pieds F9/9 Approche/2"_s);
    }

    void a_row_that_the_store_refuses_opens_no_further_putt()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_told_shot(round.store, 1, 1, 14, 6, u"Pieds"_s, 3);
        in_told_round([&](hand& user) {
            round.store.store.write(u"create trigger refuse before update on Stat_rounds begin select "
                                    u"raise(abort, 'no'); end"_s);
            user.click_cell(details, 0, 3);
            user.type(u"5"_s);
            user.key(Qt::Key_Return);
            user.same(user.grid_rows(details), 1, u"rows"_s);
            user.same(user.cell(details, 0, 3), u"5"_s, u"distance"_s);
            round.store.store.write(u"drop trigger refuse"_s);
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 0>5 "));
    }
};

QTEST_MAIN(test_detailed_holes)

#include "test_detailed_holes.moc"
