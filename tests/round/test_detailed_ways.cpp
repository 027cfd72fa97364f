#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "data_grid.h"
#include "DataEnvironment1.h"
#include "f_new_round.h"
#include "languages.h"
#include "round_windows.h"
#include "told_shots.h"

using namespace verdane;
using namespace verdane::testing;

class test_detailed_ways : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OK_from_the_detailed_page_stores_shots_counts_and_putts_data() { both_languages(); }
    void OK_from_the_detailed_page_stores_shots_counts_and_putts()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            accept(user);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
        QVERIFY(!data_environment().rsStat_rounds.is_open());
        QCOMPARE(data_environment().rsStat_rounds.Source(), QStringLiteral("select * from stat_rounds"));
    }

    void a_distance_that_is_still_being_typed_is_taken_by_OK()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_shot(user, 0, 1, QString(), 1);
            user.click_cell(details, 0, 3);
            user.type(QStringLiteral("77"));
            accept(user);
        });
        QCOMPARE(round.store.number(QStringLiteral("select after from Stat_rounds")), 77);
    }

    void Cancel_and_Yes_stores_everything()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.click(cancel_button);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
    }

    void Cancel_and_No_keeps_the_shots_and_loses_the_counts_data()
    {
        QTest::addColumn<bool>("title_bar");
        QTest::newRow("Cancel") << false;
        QTest::newRow("title bar") << true;
    }
    void Cancel_and_No_keeps_the_shots_and_loses_the_counts()
    {
        QFETCH(bool, title_bar);
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            if (title_bar)
                user.close_window(round_window());
            else
                user.click(cancel_button);
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(round.store.at(QStringLiteral("games"), 3), QStringLiteral("null"));
        QCOMPARE(stored_putts(round.store, 1), QStringLiteral("0 0 0 0 0 0"));
    }

    void Cancel_and_Cancel_stays_on_the_quick_page_for_good()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.click(cancel_button);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            user.same(boxes(user), told_hole, QStringLiteral("boxes"));
            user.check(user.visible(QStringLiteral("text_vrd_0")), QStringLiteral("the quick page"));
            user.click_tab(QStringLiteral("TabStrip2"), 2);
            user.click(QStringLiteral("Command4"));
            user.check(!user.visible(QStringLiteral("Framedet")), QStringLiteral("no detailed page"));
            user.same(user.selected(QStringLiteral("TabStrip2")), 0, QStringLiteral("tab"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
    }

    void OK_and_Cancel_stay_where_a_shot_is_incomplete_data() { both_languages(); }
    void OK_and_Cancel_stay_where_a_shot_is_incomplete()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            for (const QString& button : {ok_button, cancel_button}) {
                user.click(button);
                user.answer(refusal_of_shot(QStringLiteral(" 2")));
                user.wait_for_window(round_window());
                user.check(user.visible(details), QStringLiteral("the detailed page"));
            }
            user.close_window(round_window());
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            tell_shot(user, 1, 9, QString(), 2);
            accept(user);
        });
        QCOMPARE(round.shots(1), 2);
    }

    void the_close_box_leaves_where_a_shot_is_incomplete_once_the_question_is_answered()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            leave_second_shot_open(user);
            user.close_window(round_window());
            user.answer(refusal_of_shot(QStringLiteral(" 2")));
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(round.shots(1), 2);
    }

    void quick_figures_survive_a_look_at_the_detailed_page()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("11200001000"));
            go_to_detailed_page(user);
            go_to_quick_page(user);
            user.same(boxes(user), QStringLiteral("1 1 2 0 0 0 0 1 0 0 0"), QStringLiteral("boxes"));
            user.same(user.focus(), QStringLiteral("text_vrd_0"), QStringLiteral("focus"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), QStringLiteral("1 1 2 0 0 0 0 1 0 0 0"));
        QCOMPARE(round.shots(1), 0);
    }

    void shots_overwrite_quick_figures()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("99999999999"));
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.same(boxes(user), told_hole, QStringLiteral("boxes"));
            user.click_tab(hole_tabs, 2);
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(stored_putts(round.store, 1), told_putts);
    }

    void quick_figures_typed_over_a_detailed_hole_are_stored()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.click(QStringLiteral("text_vrd_0"));
            user.type(QStringLiteral("3"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), QStringLiteral("3 1 2 2 0 0 0 0 0 0 0"));
        QCOMPARE(round.shots(1), 4);
    }

    void a_click_on_the_quick_tab_when_it_is_up_changes_nothing()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            go_to_quick_page(user);
            user.click_tab(hole_tabs, 2);
            user.type(QStringLiteral("5"));
            go_to_quick_page(user);
            user.same(user.text(QStringLiteral("text_vrd_0")), QStringLiteral("5"), QStringLiteral("box"));
            discard(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
    }

    void a_round_is_reopened_in_the_other_language()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            accept(user);
        });
        is_french = false;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            go_to_detailed_page(user);
            user.same(user.grid_row(details, 1),
                      QStringLiteral("2 | F9 | 30 | Pieds | Approche | No | No | No | No | Dans l'allé | "),
                      QStringLiteral("the approach"));
            user.click_cell(details, 3, 3);
            user.type(QStringLiteral("1"));
            user.key(Qt::Key_Return);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), QStringLiteral("1 1 3 2 0 0 0 0 0 0 0"));
        QCOMPARE(stored_putts(round.store, 1), QStringLiteral("30 4 1 0 0 0"));
        QCOMPARE(round.store.text(QStringLiteral("select group_concat(unit) from Stat_rounds")),
                 QStringLiteral("Verges,Pieds,Feets,Feets,Feets"));
    }

    void Command4_opens_the_shots_of_the_hole_data() { both_languages(); }
    void Command4_opens_the_shots_of_the_hole()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        round.store.add_round(key_of_keyed_round());
        add_told_shot(round.store, 3, 1, 1, 0, QStringLiteral("Verges"), 1);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.click_tab(hole_tabs, 3);
            user.click(QStringLiteral("Command4"));
            user.check(user.visible(details), QStringLiteral("the detailed page"));
            user.same(user.selected(QStringLiteral("TabStrip2")), 1, QStringLiteral("tab"));
            user.same(user.cell(details, 0, 2), QStringLiteral("D"), QStringLiteral("club"));
            user.click(QStringLiteral("Command4"));
            user.same(user.cell(details, 0, 2), QStringLiteral("D"), QStringLiteral("club"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 3), QStringLiteral("1 0 0 1 0 0 0 0 0 0 0"));
    }

    void without_a_date_no_shots_are_opened_data() { both_languages(); }
    void without_a_date_no_shots_are_opened()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            with_round(user, [](f_new_round& window) { window.date_value.clear(); });
            user.click(QStringLiteral("Command4"));
            user.answer({french ? QStringLiteral("Veuillez d'abord choisir la date de la ronde.")
                                : QStringLiteral("Please enter the round's date."),
                         QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.check(!user.visible(QStringLiteral("Framedet")), QStringLiteral("no detailed page"));
            user.click_tab(QStringLiteral("TabStrip2"), 2);
            user.answer({QStringLiteral("Il faut choisir la date du ronde avant d'entrer les détails"),
                         QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.check(user.visible(QStringLiteral("Framedet")), QStringLiteral("the detailed page"));
            user.same(user.grid_rows(details), 0, QStringLiteral("rows"));
            user.click(QStringLiteral("CommandSuiv"));
            user.click(QStringLiteral("CommandSup"));
            user.answer({french ? QStringLiteral("Choisissez le coup que vous voulez supprimer.")
                                : QStringLiteral("Please select the shot you wish to remove."),
                         QMessageBox::Critical, QStringLiteral("Verdane"), QMessageBox::Ok});
            user.same(round.store.number(QStringLiteral("select count(*) from Stat_rounds")), 0,
                      QStringLiteral("shots"));
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }

    void shots_of_other_rounds_are_never_touched()
    {
        const golfer_store round;
        round.store.store.write(QStringLiteral(
            "insert into Stat_rounds (date, hole, shot, before, stickval, shot_type_value) values "
            "('20230101080000', 1, 1, 77, 0, 0)"));
        in_keyed_round([&](hand& user) {
            user.type(QStringLiteral("112"));
            user.click_tab(QStringLiteral("TabStrip2"), 1);
            user.click_tab(hole_tabs, 2);
            accept(user);
        });
        QCOMPARE(
            round.store.text(QStringLiteral("select before || ' ' || shot || ' ' || coalesce(normal, '-') "
                                            "from Stat_rounds")),
            QStringLiteral("77 1 -"));
        QCOMPARE(stored_figures(round.store, 1).left(5), QStringLiteral("1 1 2"));
    }

    void the_costs_are_opened_from_the_detailed_page_which_goes_on()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_hole(user);
            user.click_cell(details, 2, 3);
            user.click(QStringLiteral("Command2"));
            user.wait_for_window(QStringLiteral("f_cost"));
            user.fill(QStringLiteral("cost_0"), QStringLiteral("25"));
            user.click(QStringLiteral("OKButton"));
            user.wait_until_gone(QStringLiteral("f_cost"));
            user.wait_for_window(round_window());
            user.same(user.text(QStringLiteral("text_7")), QStringLiteral("25"), QStringLiteral("costs"));
            user.same(user.cursor(details), QStringLiteral("2,3"), QStringLiteral("cursor"));
            user.same(user.focus(), details, QStringLiteral("focus"));
            user.same(user.grid_rows(details), 4, QStringLiteral("rows"));
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), told_hole);
        QCOMPARE(round.store.at(QStringLiteral("cost"), 1), QStringLiteral("25"));
    }

    void saveShots_commits_the_shot_that_is_being_told()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            go_to_detailed_page(user);
            tell_shot(user, 0, 3, QString(), 0);
            user.same(round.store.text(QStringLiteral("select stickval from Stat_rounds")),
                      QStringLiteral("0"), QStringLiteral("club in the store"));
            with_round(user, [](f_new_round& window) { window.saveShots(); });
            user.same(round.store.text(QStringLiteral("select stickval from Stat_rounds")),
                      QStringLiteral("3"), QStringLiteral("club in the store"));
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }
};

QTEST_MAIN(test_detailed_ways)

#include "test_detailed_ways.moc"
