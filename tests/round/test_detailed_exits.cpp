#include <QTest>

#include "records/Main_module.h"
#include "round/f_new_round.h"
#include "round/shot_rows.h"
#include "store/DataEnvironment1.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/languages.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString earlier_round = u"20230101080000"_s;

/// Closes the window in one of the ways in which it can be closed.
void leave(hand& user, const QString& way)
{
    if (way == u"OK") {
        accept(user);
        return;
    }
    if (way.startsWith(u"Cancel"))
        user.click(cancel_button);
    else
        user.close_window(round_window());
    const bool yes = way.endsWith(u"Yes");
    user.answer(question_on_closing(), yes ? QMessageBox::Yes : QMessageBox::No);
    if (yes)
        user.answer(notice_of_save());
    user.wait_until_closed(round_window());
}

/// The number of rows in games, games2, cost and Stat_rounds.
QString row_counts(const golfer_store& round)
{
    QStringList counts;
    for (const char* table : {"games", "games2", "cost", "Stat_rounds"})
        counts << round.store.text(u"select count(*) from "_s + QString::fromLatin1(table));
    return counts.join(u' ');
}

}  // namespace

/// The contents of the tables after each way to close the window from the detailed page.
class test_detailed_exits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void closing_a_new_round_stores_or_discards_its_rows_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("kept");
        QTest::newRow("OK") << "OK" << true;
        QTest::newRow("Cancel, Yes") << "Cancel, Yes" << true;
        QTest::newRow("Cancel, No") << "Cancel, No" << false;
        QTest::newRow("title bar, Yes") << "title bar, Yes" << true;
        QTest::newRow("title bar, No") << "title bar, No" << false;
    }
    void closing_a_new_round_stores_or_discards_its_rows()
    {
        QFETCH(QString, way);
        QFETCH(bool, kept);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            leave(user, way);
        });
        // The shots are stored in either case.
        QCOMPARE(row_counts(round), kept ? u"1 1 1 4"_s : u"0 0 0 4"_s);
        if (kept) {
            QCOMPARE(stored_figures(round.store, 1), entered_figures);
            QCOMPARE(stored_putts(round.store, 1), entered_putts);
        }
    }

    void closing_a_stored_round_stores_or_discards_its_changes_data()
    {
        closing_a_new_round_stores_or_discards_its_rows_data();
    }
    void closing_a_stored_round_stores_or_discards_its_changes()
    {
        QFETCH(QString, way);
        QFETCH(bool, kept);
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        round.store.store.write(u"update cost set fg = 40, cm = 2"_s);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.type(u"4"_s);
            user.click_tab(hole_tabs, 2);
            open_detailed_page(user);
            enter_hole(user);
            leave(user, way);
        });
        QCOMPARE(row_counts(round), u"1 1 1 4"_s);
        // The hole that was left before is stored whatever the answer is.
        QCOMPARE(stored_figures(round.store, 1), u"4 0 0 0 0 0 0 0 0 0 0"_s);
        QCOMPARE(stored_figures(round.store, 2).startsWith(entered_figures), kept);
        QCOMPARE(stored_putts(round.store, 2), kept ? entered_putts : u"0 0 0 0 0 0"_s);
        QCOMPARE(round.store.text(u"select fg || ' ' || cm from cost"_s), u"40 2"_s);
    }

    void the_close_box_removes_a_blank_shot_and_keeps_an_incomplete_one_data()
    {
        QTest::addColumn<bool>("incomplete");
        QTest::addColumn<int>("shots");
        QTest::newRow("blank") << false << 0;
        QTest::newRow("incomplete") << true << 1;
    }
    void the_close_box_removes_a_blank_shot_and_keeps_an_incomplete_one()
    {
        QFETCH(bool, incomplete);
        QFETCH(int, shots);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            if (incomplete)
                enter_shot(user, 0, 1, QString(), 0);
            user.close_window(round_window());
            user.answer(refusal_of_shot(u" 1"_s));
            user.answer(question_on_closing(), QMessageBox::Yes);
            user.answer(notice_of_save());
        });
        QCOMPARE(round.shots(1), shots);
    }

    void Escape_keeps_the_window_open_while_a_shot_is_incomplete()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 1, QString(), 0);
            user.key(Qt::Key_Escape);
            user.answer(refusal_of_shot(u" 1"_s));
            user.wait_for_window(round_window());
            user.check(!user.is_open(u"message_box"_s), u"no question"_s);
            user.check(user.visible(details), u"the detailed page is shown"_s);
            user.close_window(round_window());
            user.answer(refusal_of_shot(u" 1"_s));
            user.answer(question_on_closing(), QMessageBox::No);
        });
    }

    void leaving_a_hole_writes_the_par_to_its_first_shot()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        for (const int shot : {1, 2})
            add_complete_shot(round.store, 1, shot, 9, 60 / shot, u"Verges"_s, 2);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            accept(user);
        });
        QCOMPARE(round.store.text(u"select group_concat(coalesce(normal, '-')) from Stat_rounds"_s),
                 u"4,-"_s);
    }

    void OK_saves_a_detailed_hole_twice_data()
    {
        QTest::addColumn<bool>("detailed");
        QTest::addColumn<int>("saves");
        QTest::newRow("detailed") << true << 2;
        QTest::newRow("quick") << false << 1;
    }
    void OK_saves_a_detailed_hole_twice()
    {
        QFETCH(bool, detailed);
        QFETCH(int, saves);
        const golfer_store round;
        int keys = 0;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            if (detailed)
                enter_hole(user);
            else
                open_quick_page(user);
            user.look([&] { keys = plain(Main_module::round_key_count); });
            accept(user);
        });
        // Each save appends the key.
        QCOMPARE(plain(Main_module::round_key_count) - keys, saves);
    }

    void No_closes_the_window_although_its_shots_are_closed()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            user.look([] { data_environment().rsStat_rounds.Close(); });
            discard(user);
        });
        QCOMPARE(row_counts(round), u"0 0 0 0"_s);
    }

    void if_the_shots_cannot_be_opened_the_grid_is_empty_and_the_window_can_be_closed_in_any_way_data()
    {
        closing_a_new_round_stores_or_discards_its_rows_data();
    }
    void if_the_shots_cannot_be_opened_the_grid_is_empty_and_the_window_can_be_closed_in_any_way()
    {
        QFETCH(QString, way);
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.type(u"4"_s);
            round.store.store.write(u"alter table Stat_rounds rename to away"_s);
            open_detailed_page(user);
            user.same(user.grid_rows(details), 0, u"rows"_s);
            for (const char* button : {"CommandSuiv", "Command4"})
                user.click(QString::fromLatin1(button));
            user.click_tab(hole_tabs, 2);
            user.same(user.grid_rows(details), 0, u"rows of hole 2"_s);
            leave(user, way);
        });
        QCOMPARE(stored_figures(round.store, 1).left(1), u"4"_s);
    }

    void a_row_pending_from_an_earlier_round_is_not_stored_by_the_next_data()
    {
        QTest::addColumn<bool>("stored");
        QTest::newRow("a new round follows") << false;
        QTest::newRow("a stored round follows") << true;
    }
    void a_row_pending_from_an_earlier_round_is_not_stored_by_the_next()
    {
        QFETCH(bool, stored);
        const golfer_store round;
        Recordset& shots = data_environment().rsStat_rounds;
        shots.set_Source(statement_of_hole(earlier_round, 1));
        shots.Open();
        shots.AddNew();
        shots.Fields(u"date"_s).set(earlier_round);
        if (stored) {
            round.store.add_round(key_of_keyed_round());
            in_stored_round(key_of_keyed_round(), accept);
        } else {
            in_keyed_round(accept);
        }
        QCOMPARE(round.store.number(u"select count(*) from Stat_rounds"_s), 0);
    }

    void shots_that_could_not_be_opened_are_not_changed_by_the_next_round()
    {
        const golfer_store round;
        round.store.add_round(earlier_round);
        round.store.store.write(u"insert into Stat_rounds (date, hole, shot, before) "
                                u"values ('20230101080000', 1, 7, 99)"_s);
        const QString there = u"alter table Stat_rounds rename to away"_s;
        in_stored_round(earlier_round, [&](hand& user) {
            round.store.store.write(there);
            open_detailed_page(user);
            discard(user);
        });
        round.store.store.write(u"alter table away rename to Stat_rounds"_s);
        in_keyed_round(accept);
        QCOMPARE(round.store.text(u"select shot || ' ' || before || ' ' || "
                                  u"coalesce(normal, '-') from Stat_rounds"_s),
                 u"7 99 -"_s);
    }

    void the_costs_open_and_close_although_the_shots_cannot_be_opened()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            round.store.store.write(u"alter table Stat_rounds rename to away"_s);
            open_detailed_page(user);
            user.click(u"Command2"_s);
            user.wait_for_window(u"f_cost"_s);
            user.close_window(u"f_cost"_s);
            user.wait_for_window(round_window());
            user.same(user.grid_rows(details), 0, u"rows"_s);
            discard(user);
        });
    }

    void drop_blank_shot_returns_whether_it_removed_a_shot_data()
    {
        QTest::addColumn<bool>("blank");
        QTest::newRow("removed") << true;
        QTest::newRow("nothing removed") << false;
    }
    void drop_blank_shot_returns_whether_it_removed_a_shot()
    {
        QFETCH(bool, blank);
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            if (!blank)
                enter_shot(user, 0, 1, u"60"_s, 1);
            with_round(user, [&](f_new_round& window) {
                const blank_shot result = window.drop_blank_shot();
                QCOMPARE(result.removed, blank);
                // A removal leaves out the check of the shots.
                QCOMPARE(result.shots_complete.has_value(), !blank);
                QVERIFY(result.shots_complete.value_or(true));
                window.unload();
            });
        });
    }

    void shots_are_not_opened_after_Cancel_has_closed_the_detailed_page()
    {
        const golfer_store round;
        in_keyed_round([&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click(u"Command1_2"_s);
            user.answer(question_on_closing(), QMessageBox::Cancel);
            user.wait_for_window(round_window());
            user.click_tab(hole_tabs, 2);
            user.click(u"Command4"_s);
            accept(user);
        });
        QCOMPARE(round.shots(1), 4);
        QCOMPARE(round.shots(2), 0);
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
    }

    void the_statement_of_a_removal_is_not_taken_for_the_shots_of_a_hole()
    {
        const golfer_store round;
        round.store.store.write(u"insert into Stat_rounds (date, hole, shot, before, after, stickval, "
                                u"shot_type_value) values ('20230101080000', 1, 1, 77, 9, 5, 1), "
                                u"('20230101080000', 4, 1, 99, 0, 0, 0)"_s);
        data_environment().rsStat_rounds.set_Source(u"select * from Stat_rounds order by date,hole"_s);
        in_keyed_round([&](hand& user) {
            user.type(u"112"_s);
            accept(user);
        });
        QCOMPARE(round.store.text(u"select group_concat(hole || ' ' || shot || ' ' || before "
                                  u"|| ' ' || coalesce(normal, '-')) from Stat_rounds"_s),
                 u"1 1 77 -,4 1 99 -"_s);
        QCOMPARE(stored_figures(round.store, 1).left(5), u"1 1 2"_s);
    }

    void shots_are_stored_under_a_key_with_a_quote()
    {
        const golfer_store round;
        in_new_round([&](hand& user) {
            tee_off(user, u"9'"_s, u"30"_s, u"é\""_s);
            user.wait_for_window(round_window());
            open_detailed_page(user);
            enter_hole(user);
            user.click_tab(hole_tabs, 2);
            user.click_tab(hole_tabs, 1);
            user.answer(refusal_of_shot(u" 1"_s));
            user.same(user.grid_rows(details), 4, u"rows"_s);
            accept(user);
        });
        QCOMPARE(round.store.text(u"select date || ' ' || count(*) from Stat_rounds"_s),
                 u"202406149'30é\" 4"_s);
        QCOMPARE(stored_figures(round.store, 1), entered_figures);
    }

    void closing_without_saving_drops_a_change_of_a_shot_that_is_not_committed()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        add_complete_shot(round.store, 1, 1, 1, 60, u"Verges"_s, 1);
        const QString stored = stored_shots(round.store, 1);
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            enter_shot(user, 0, 9, QString(), 0);
            user.same(user.cell(details, 0, 2), u"F9"_s, u"club in the grid"_s);
            with_round(user, [](f_new_round& window) { window.ask_and_close(true); });
        });
        QCOMPARE(stored_shots(round.store, 1), stored);
    }
};

QTEST_MAIN(test_detailed_exits)

#include "test_detailed_exits.moc"
