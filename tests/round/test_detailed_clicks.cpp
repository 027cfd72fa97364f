#include <QApplication>
#include <QTest>

#include "round/f_new_round.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString temperature = u"Text1"_s;
const QString partners = u"pList"_s;
const QString courses = u"cmb_courses"_s;

/// Enters a hole up to its second putt and types the distance of that putt.
void type_the_last_putt(hand& user, const QString& distance)
{
    open_detailed_page(user);
    enter_hole(user);
    user.type(distance);
    user.same(user.focus(), u"cell_being_typed"_s, u"focus"_s);
}

void wait_for_rows(hand& user, int rows)
{
    user.wait_until(u"%1 shots"_s.arg(rows), [&] { return user.grid_rows(details) == rows; });
}

}  // namespace

/// A click on another control while a distance is being typed into the grid: the distance is committed,
/// and the click has its usual effect.
class test_detailed_clicks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OK_commits_a_holed_putt_that_is_being_typed_and_closes_the_round_data() { both_languages(); }
    void OK_commits_a_holed_putt_that_is_being_typed_and_closes_the_round()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            user.press_and_release(ok_button);
            user.answer(refusal_of_shot());
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
    }

    void Cancel_commits_a_holed_putt_that_is_being_typed_and_shows_the_question()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            user.press_and_release(cancel_button);
            user.answer(refusal_of_shot());
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(round.shots(1), 4);
    }

    void OK_commits_a_typed_distance_and_refuses_the_incomplete_shot()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            user.click_cell(details, 1, 3);
            user.type(u"12"_s);
            user.press_and_release(ok_button);
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.same(user.cell(details, 1, 3), u"12"_s, u"distance"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void the_buttons_of_the_shots_commit_a_holed_putt_and_act_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("messages");
        QTest::addColumn<int>("rows");
        // No shot follows a holed one: the button shows the message a second time.
        QTest::newRow("next shot") << "CommandSuiv" << 2 << 4;
        QTest::newRow("remove") << "CommandSup" << 1 << 3;
        QTest::newRow("shots of the hole") << "Command4" << 1 << 4;
    }
    void the_buttons_of_the_shots_commit_a_holed_putt_and_act()
    {
        QFETCH(QString, button);
        QFETCH(int, messages);
        QFETCH(int, rows);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            user.press_and_release(button);
            for (int message = 0; message < messages; ++message)
                user.answer(refusal_of_shot());
            user.wait_for_window(round_window());
            wait_for_rows(user, rows);
            accept(user);
        });
        QCOMPARE(round.shots(1), rows);
    }

    void Command2_commits_a_holed_putt_and_opens_the_costs()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            user.press_and_release(u"Command2"_s);
            user.answer(refusal_of_shot());
            user.wait_for_window(u"f_cost"_s);
            user.close_window(u"f_cost"_s);
            user.wait_for_window(round_window());
            user.same(round.store.text(u"select after from Stat_rounds where shot = 4"_s), u"0"_s,
                      u"distance of the last putt"_s);
            accept(user);
        });
    }

    void the_tabs_commit_a_holed_putt_and_change_the_hole_or_page_data()
    {
        QTest::addColumn<QString>("tabs");
        QTest::newRow("holes") << hole_tabs;
        QTest::newRow("pages") << u"TabStrip2"_s;
    }
    void the_tabs_commit_a_holed_putt_and_change_the_hole_or_page()
    {
        QFETCH(QString, tabs);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            const int before = user.selected(tabs);
            user.press_and_release_tab(tabs, 2 - before);
            user.answer(refusal_of_shot());
            user.wait_for_window(round_window());
            user.same(user.selected(tabs), 1 - before, u"tab"_s);
            open_quick_page(user);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
        QVERIFY(stored_shots(round.store, 1).contains(u"4 4>0 "));
    }

    void a_clicked_box_keeps_the_focus_when_the_next_putt_is_added()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"2"_s);
            user.press_and_release(temperature);
            wait_for_rows(user, 5);
            user.check(user.focus() != details, u"the focus is not in the grid"_s);
            user.key(Qt::Key_A, Qt::ControlModifier);
            user.type(u"20"_s);
            accept(user);
        });
        QCOMPARE(round.store.of_round(u"games2"_s, u"temperature"_s), u"20"_s);
        QCOMPARE(stored_putts(round.store, 1), u"30 4 2 0 0 0"_s);
    }

    void a_clicked_box_keeps_the_focus_after_the_message_about_a_holed_putt()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            user.press_and_release(temperature);
            user.answer(refusal_of_shot());
            user.wait_for_window(round_window());
            user.key(Qt::Key_A, Qt::ControlModifier);
            user.type(u"20"_s);
            accept(user);
        });
        QCOMPARE(round.store.of_round(u"games2"_s, u"temperature"_s), u"20"_s);
        QCOMPARE(round.shots(1), 4);
    }

    void a_clicked_partner_is_selected_when_the_next_putt_is_added()
    {
        const golfer_store round;
        round.store.add_partner(u"Ann"_s, u"Berg"_s, 77);
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"2"_s);
            user.press_and_release_row(partners, 0);
            wait_for_rows(user, 5);
            user.same(user.focus(), partners, u"focus"_s);
            accept(user);
        });
        const QString chosen = round.store.of_round(u"games2"_s, u"PARTNERS"_s);
        QVERIFY2(chosen.contains(u"77"), qUtf8Printable(chosen));
    }

    void an_opened_list_stays_open_until_an_entry_is_chosen()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"0"_s);
            user.press_and_release(courses);
            user.wait_until(u"the open list"_s, [] { return QApplication::activePopupWidget() != nullptr; });
            user.key(Qt::Key_Down);
            user.key(Qt::Key_Return);
            user.answer(refusal_of_shot());
            user.wait_for_window(round_window());
            user.same(user.selected(courses), 1, u"course"_s);
            user.same(user.focus(), courses, u"focus"_s);
            accept(user);
        });
        QCOMPARE(round.store.of_round(u"games"_s, u"CODEF"_s), u"BETA-6"_s);
        QCOMPARE(round.shots(1), 4);
    }

    void opening_and_closing_a_list_commits_the_typed_distance()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"2"_s);
            user.press_and_release(u"conditions"_s);
            user.wait_until(u"the open list"_s, [] { return QApplication::activePopupWidget() != nullptr; });
            user.key(Qt::Key_Escape);
            wait_for_rows(user, 5);
            user.same(user.focus(), u"conditions"_s, u"focus"_s);
            accept(user);
        });
    }

    void a_clicked_cell_gets_the_cursor()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"2"_s);
            user.click_cell(details, 1, 3);
            user.same(user.cursor(details), u"1,3"_s, u"cursor"_s);
            user.same(user.grid_rows(details), 5, u"rows"_s);
            accept(user);
        });
    }

    void a_clicked_cell_gets_the_cursor_although_the_rows_scroll()
    {
        const golfer_store round;
        for (int shot = 1; shot <= 14; ++shot)
            add_complete_shot(round.store, 1, shot, 14, 20 - shot, u"Pieds"_s, 3);
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            user.click_cell(details, 13, 3);
            user.type(u"5"_s);
            user.click_cell(details, 11, 3);
            user.same(user.grid_rows(details), 15, u"rows"_s);
            user.same(user.cursor(details), u"11,3"_s, u"cursor"_s);
            discard(user);
        });
    }

    void the_close_box_commits_a_distance_that_is_being_typed()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            type_the_last_putt(user, u"2"_s);
            user.close_window(round_window());
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(round.store.number(u"select after from Stat_rounds where shot = 4"_s), 2);
    }
};

QTEST_MAIN(test_detailed_clicks)

#include "test_detailed_clicks.moc"
