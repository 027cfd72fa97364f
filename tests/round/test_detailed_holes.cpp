#include <QComboBox>
#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString nothing = u"0 0 0 0 0 0 0 0 0 0 0"_s;

/// Opens the stored round on its detailed page, runs the script and unloads the window.
void in_detailed_round(const std::function<void(hand&)>& script)
{
    in_stored_round(key_of_keyed_round(), [&](hand& user) {
        open_detailed_page(user);
        script(user);
        with_round(user, [](f_new_round& window) { window.unload(); });
    });
}

bool is_detailed(hand& user)
{
    bool detailed = false;
    with_round(user, [&](f_new_round& window) { detailed = window.isdetailed(); });
    return detailed;
}

bool put_mode(hand& user)
{
    bool putt = false;
    with_round(user, [&](f_new_round& window) { putt = window.PUT_MODE(); });
    return putt;
}

/// Removes the fourth shot of a hole whose second one is incomplete and whose third one is a putt.
void remove_last_shot_before_a_putt(hand& user)
{
    user.click_cell(details, 3, 2);
    user.click(u"CommandSup"_s);
    user.answer(refusal_of_shot(u" 2"_s));
    user.wait_for_window(round_window());
    user.check(put_mode(user), u"a putt is being entered"_s);
}

}  // namespace

class test_detailed_holes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_hole_tab_is_refused_with_two_messages_while_a_shot_is_incomplete_data() { both_languages(); }
    void a_hole_tab_is_refused_with_two_messages_while_a_shot_is_incomplete()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(u" 2"_s));
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(user.selected(hole_tabs), 0, u"tab"_s);
            user.same(user.grid_rows(details), 2, u"rows"_s);
            user.choose(u"cmb_courses"_s, 0);
            enter_shot(user, 1, 9, QString(), 2);
            user.click_tab(hole_tabs, 2);
            user.same(user.selected(hole_tabs), 1, u"tab"_s);
            open_quick_page(user);
            discard(user);
        });
    }

    void a_blank_hole_is_left_with_one_message_and_has_no_rows_data() { both_languages(); }
    void a_blank_hole_is_left_with_one_message_and_has_no_rows()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(u" 1"_s));
            user.wait_for_window(round_window());
            user.same(user.selected(hole_tabs), 1, u"tab"_s);
            user.same(user.cell(details, 0, 1), u"1"_s, u"a blank shot"_s);
            user.same(round.shots(1), 0, u"shots of hole 1"_s);
            user.click_tab(hole_tabs, 1);
            user.answer(refusal_of_shot(u" 1"_s));
            user.same(round.shots(1), 1, u"a new blank shot of hole 1"_s);
            open_quick_page(user);
            user.same(round.shots(1), 0, u"shots of hole 1"_s);
            discard(user);
        });
    }

    void the_shots_of_two_holes_are_stored_and_shown_again()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click_tab(hole_tabs, 2);
            enter_shot(user, 0, 1, u"0"_s, 2);
            user.click_tab(hole_tabs, 1);
            user.same(user.grid_rows(details), 4, u"rows of hole 1"_s);
            user.same(user.cursor(details), u"0,2"_s, u"cursor"_s);
            user.same(boxes(user), entered_figures, u"boxes of hole 1"_s);
            user.same(stored_figures(round.store, 2), u"0 1 0 1 0 0 0 0 0 0 0"_s, u"hole 2"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
        QVERIFY(stored_shots(round.store, 2).endsWith(u"cal"));
    }

    void the_list_of_holes_changes_the_hole_like_the_tabs()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.choose(u"cmb_holes"_s, 1);
            user.same(user.selected(hole_tabs), 1, u"tab"_s);
            user.same(user.grid_rows(details), 1, u"rows of hole 2"_s);
            user.same(boxes(user), nothing, u"boxes of hole 2"_s);
            open_quick_page(user);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
    }

    void the_list_of_holes_is_refused_while_a_shot_is_incomplete()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
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

    void a_change_of_the_hole_on_the_quick_page_keeps_the_shots()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            user.click_tab(hole_tabs, 5);
            user.type(u"3"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_figures(round.store, 5).left(5), u"3 0 0"_s);
        QCOMPARE(stored_putts(round.store, 5), u"0 0 0 0 0 0"_s);
        // The first shot still has the length of the hole that it belongs to.
        QCOMPARE(round.store.number(u"select before from Stat_rounds where shot = 1"_s), 101);
    }

    void OK_is_refused_on_the_quick_page_while_a_shot_is_incomplete()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            open_quick_page(user);
            user.answer(refusal_of_shot(u" 2"_s));
            user.check(user.visible(u"text_vrd_0"_s), u"the quick page"_s);
            user.same(boxes(user), u"1 0 0 1 0 0 0 0 0 0 0"_s, u"boxes"_s);
            user.click(ok_button);
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            open_detailed_page(user);
            enter_shot(user, 1, 9, QString(), 2);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 0 2 0 0 0 0 0 0 0"_s);
    }

    void quick_figures_are_lost_when_a_blank_hole_is_left_by_a_tab()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"11211112222"_s);
            open_detailed_page(user);
            user.click_tab(hole_tabs, 2);
            user.answer(refusal_of_shot(u" 1"_s));
            user.check(!is_detailed(user), u"isdetailed"_s);
            open_quick_page(user);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), nothing);
    }

    void a_first_shot_without_a_kind_is_removed_by_the_quick_page()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(u"11200001000"_s);
            open_detailed_page(user);
            enter_shot(user, 0, 1, u"60"_s, 0);
            open_quick_page(user);
            user.same(round.shots(1), 0, u"shots"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 2 0 0 0 0 1 0 0 0"_s);
    }

    void changing_pages_and_holes_converts_no_distance_again_data() { both_languages(); }
    void changing_pages_and_holes_converts_no_distance_again()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            const QString entered = stored_shots(round.store, 1);
            user.check(entered.contains(u">30 "_s), u"the approach in feet"_s);
            for (int times = 0; times < 3; ++times) {
                open_detailed_page(user);
                user.click_tab(hole_tabs, 2);
                user.click_tab(hole_tabs, 1);
                user.answer(refusal_of_shot(u" 1"_s));
                user.wait_for_window(round_window());
                open_quick_page(user);
            }
            user.same(stored_shots(round.store, 1), entered, u"the shots"_s);
            accept(user);
        });
    }

    void of_seven_putts_six_lengths_are_stored()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 9, u"30"_s, 2);
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

    void the_lengths_of_removed_putts_are_reset_to_0()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        const QList<int> rests{25, 12, 6, 3, 0};
        for (int i = 0; i < rests.size(); ++i)
            add_complete_shot(round.store, 1, i + 1, i == 0 ? 9 : 14, rests[i], u"Pieds"_s, i == 0 ? 2 : 3);
        in_stored_round(key_of_keyed_round(), [](hand& user) {
            open_detailed_page(user);
            accept(user);
        });
        QCOMPARE(stored_putts(round.store, 1), u"25 12 6 3 0 0"_s);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
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

    void a_hole_whose_shots_were_removed_is_stored_with_zeros()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            open_quick_page(user);
            user.check(is_detailed(user), u"isdetailed"_s);
            accept(user);
        });
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            for (int shots = 4; shots > 0; --shots)
                user.click(u"CommandSup"_s);
            accept(user);
        });
        QCOMPARE(round.shots(1), 0);
        QCOMPARE(stored_figures(round.store, 1), nothing);
        QCOMPARE(stored_putts(round.store, 1), u"0 0 0 0 0 0"_s);
    }

    void the_next_shot_is_added_although_an_earlier_one_is_incomplete()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_complete_shot(round.store, 1, 1, 1, 60, u"Verges"_s, 1);
        add_shot(round.store, 1, 2, u"after = 5"_s);
        add_complete_shot(round.store, 1, 3, 14, 3, u"Pieds"_s, 3);
        add_complete_shot(round.store, 1, 4, 9, 1, u"Pieds"_s, 2);
        in_detailed_round([&](hand& user) {
            remove_last_shot_before_a_putt(user);
            enter_shot(user, 2, 9, QString(), 2);
            user.click(u"CommandSuiv"_s);
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(user.cursor(details), u"3,2"_s, u"cursor"_s);
            user.check(!put_mode(user), u"a shot is being entered"_s);
        });
        QCOMPARE(stored_shots(round.store, 1).split(u'\n').last(), u"4 3>- - -/0 -/0"_s);
    }

    void a_distance_retyped_before_a_putt_is_in_yards_and_converted_again()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_complete_shot(round.store, 1, 1, 9, 90, u"Pieds"_s, 2);
        add_complete_shot(round.store, 1, 2, 14, 0, u"Pieds"_s, 3);
        in_detailed_round([&](hand& user) {
            user.click_cell(details, 0, 3);
            user.type(u"12"_s);
            user.key(Qt::Key_Return);
            user.same(user.cell(details, 0, 3) + user.cell(details, 0, 4), u"12Verges"_s, u"as typed"_s);
            open_quick_page(user);
        });
        QCOMPARE(stored_shots(round.store, 1).section(u'\n', 0, 0), u"1 101>36 Pieds F9/9 Approche/2"_s);
    }

    void after_a_row_that_the_store_refuses_no_putt_is_added()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_complete_shot(round.store, 1, 1, 14, 6, u"Pieds"_s, 3);
        in_detailed_round([&](hand& user) {
            round.store.store.write(refuse(u"update"_s, u"Stat_rounds"_s));
            user.click_cell(details, 0, 3);
            user.type(u"5"_s);
            user.key(Qt::Key_Return);
            user.same(user.grid_rows(details), 1, u"rows"_s);
            user.same(user.cell(details, 0, 3), u"5"_s, u"distance"_s);
            round.store.store.write(refuse_no_more());
        });
        QVERIFY(stored_shots(round.store, 1).startsWith(u"1 0>5 "));
    }
};

QTEST_MAIN(test_detailed_holes)

#include "test_detailed_holes.moc"
