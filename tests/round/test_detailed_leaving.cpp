#include <QTest>

#include "base/language.h"
#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"
#include "tests/support/refused_change.h"
#include "tests/support/store_invariants.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

class test_detailed_leaving : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OK_from_the_detailed_page_stores_shots_counts_and_putts_data() { both_languages(); }
    void OK_from_the_detailed_page_stores_shots_counts_and_putts()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            accept(user);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
        QVERIFY(!data_environment().rsStat_rounds.is_open());
        QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from stat_rounds"_s);
    }

    void OK_commits_a_distance_that_is_being_typed()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 1, QString(), 1);
            user.click_cell(details, 0, 3);
            user.type(u"77"_s);
            accept(user);
        });
        QCOMPARE(round.store.number(u"select after from Stat_rounds"_s), 77);
    }

    void Cancel_and_Yes_stores_everything()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click(cancel_button);
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
        QCOMPARE(stored_putts(round.store, 1), entered_putts);
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
            open_detailed_page(user);
            enter_hole(user);
            if (title_bar)
                user.close_window(round_window());
            else
                user.click(cancel_button);
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(round.store.at(u"games"_s, 3), u"null"_s);
        QCOMPARE(stored_putts(round.store, 1), u"0 0 0 0 0 0"_s);
    }

    void Cancel_and_Cancel_keep_the_window_on_the_quick_page()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click(cancel_button);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            user.same(boxes(user), entered_figures, u"boxes"_s);
            user.check(user.visible(u"text_vrd_0"_s), u"the quick page"_s);
            user.click_tab(u"TabStrip2"_s, 2);
            user.click(u"Command4"_s);
            user.check(!user.visible(u"Framedet"_s), u"no detailed page"_s);
            user.same(user.selected(u"TabStrip2"_s), 0, u"tab"_s);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
    }

    void OK_and_Cancel_are_refused_while_a_shot_is_incomplete_data() { both_languages(); }
    void OK_and_Cancel_are_refused_while_a_shot_is_incomplete()
    {
        QFETCH(bool, french);
        const golfer_store round(french);
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            for (const QString& button : {ok_button, cancel_button}) {
                user.click(button);
                user.answer(refusal_of_shot(u" 2"_s));
                user.wait_for_window(round_window());
                user.check(user.visible(details), u"the detailed page"_s);
            }
            user.close_window(round_window());
            user.answer(refusal_of_shot(u" 2"_s));
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            enter_shot(user, 1, 9, QString(), 2);
            accept(user);
        });
        QCOMPARE(round.shots(1), 2);
    }

    void OK_is_refused_when_the_incomplete_shot_cannot_be_stored()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_complete_shot(round.store, 1, 1, 1, 60, u"Verges"_s, 1);
        add_shot(round.store, 1, 2, u"stickval = 9, stick = 'F9'"_s);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            round.store.store.write(refuse(u"update"_s, u"Stat_rounds"_s, u"old.shot = 2"_s));
            user.click(ok_button);
            user.answer(refusal_of_shot(u" 2"_s));
            user.wait_for_window(round_window());
            user.check(user.visible(details), u"the detailed page"_s);
            round.store.store.write(refuse_no_more());
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
        QCOMPARE(round.shots(1), 2);
    }

    void the_close_box_closes_an_incomplete_shot_after_the_question()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_incomplete_second_shot(user);
            user.close_window(round_window());
            user.answer(refusal_of_shot(u" 2"_s));
            user.check(!round.store.frame.enabled(u"B4"_s), u"Save is off"_s);
            user.answer(question_on_closing(), QMessageBox::No);
        });
        QCOMPARE(round.shots(1), 2);
        for (const QString& button : {u"B4"_s, u"B5"_s})
            QVERIFY2(round.store.frame.enabled(button), qUtf8Printable(button));
    }

    void a_failure_while_closing_still_unlocks_the_menu_and_closes_the_shots()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            with_round(user, [&](f_new_round& window) {
                data_environment().rsgames2.Fields(u"conditionM"_s).set(2);
                round.store.store.write(refuse(u"update"_s, u"games2"_s));
                window.unload();
            });
        });
        QVERIFY(!round.store.frame.locked);
        QVERIFY(!data_environment().rsStat_rounds.is_open());
        QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from stat_rounds"_s);
        // The recordsets after the failure were not closed.
        for (const Recordset* left : {&data_environment().rsgames2, &data_environment().rsgames})
            QVERIFY2(left->is_open(), qUtf8Printable(left->name()));
    }

    void closing_the_window_restores_the_statement_before_the_opener_continues()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            with_round(user, [&](f_new_round& window) {
                window.unload();
                QCOMPARE(data_environment().rsStat_rounds.Source(), u"select * from stat_rounds"_s);
            });
        });
    }

    void a_shot_that_becomes_a_putt_when_it_is_stored_has_no_position()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 14, QString(), 0);
            accept(user);
        });
        QCOMPARE(round.store.text(u"select fairval || faireway || '|' from Stat_rounds"_s), u"0 |"_s);
        QCOMPARE(broken_invariants(round.store.store), QStringList());
    }

    void a_round_is_continued_in_the_other_language()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            accept(user);
        });
        is_french = false;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            user.same(user.grid_row(details, 1),
                      u"2 | F9 | 30 | Pieds | Approche | No | No | No | No | Dans l'allé | "_s,
                      u"the approach"_s);
            user.click_cell(details, 3, 3);
            user.type(u"1"_s);
            user.key(Qt::Key_Return);
            accept(user);
        });
        QCOMPARE(stored_figures(round.store, 1), u"1 1 3 2 0 0 0 0 0 0 0"_s);
        QCOMPARE(stored_putts(round.store, 1), u"30 4 1 0 0 0"_s);
        QCOMPARE(round.store.text(u"select group_concat(unit) from Stat_rounds"_s),
                 u"Verges,Pieds,Feets,Feets,Feets"_s);
    }

    void saveShots_commits_the_shot_that_is_being_entered()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 3, QString(), 0);
            user.same(round.store.text(u"select stickval from Stat_rounds"_s), u"0"_s,
                      u"club in the store"_s);
            with_round(user, [](f_new_round& window) { window.saveShots(); });
            user.same(round.store.text(u"select stickval from Stat_rounds"_s), u"3"_s,
                      u"club in the store"_s);
            with_round(user, [](f_new_round& window) { window.unload(); });
        });
    }
};

QTEST_MAIN(test_detailed_leaving)
#include "test_detailed_leaving.moc"
