#include <QApplication>
#include <QTest>

#include <memory>

#include "round/f_new_round.h"
#include "store/DataEnvironment1.h"
#include "tests/round/commit_watch.h"
#include "tests/round/entered_shots.h"
#include "tests/round/round_windows.h"
#include "tests/support/failures.h"
#include "tests/support/other_program.h"
#include "tests/support/refused_change.h"

using namespace verdane;
using namespace verdane::testing;
using namespace Qt::StringLiterals;

namespace {

const QString old_figures = u"9 9 9 9 9 9 9 9 9 9 9"_s;
const QString new_figures = u"1 2 3 4 5 6 7 8 1 2 3"_s;
const QString new_keys = u"12345678123"_s;

/// The number of rows of the three tables whose key is missing in one of the others.
int rows_without_counterpart(const round_store& store)
{
    return store.number(u"with rows as (select 1 as t, date from games union all select 2, date from games2 "
                        u"union all select 3, date from cost) "
                        u"select coalesce(sum(n), 0) from (select count(*) as n from rows group by date "
                        u"having count(*) <> 3 or count(distinct t) <> 3)"_s);
}

QString state_of(const round_store& store, int hole)
{
    return u"alone %1; rounds %2; figures %3; putts %4"_s.arg(rows_without_counterpart(store))
        .arg(store.number(u"select count(*) from games"_s))
        .arg(stored_figures(store, hole), stored_putts(store, hole));
}

QString state(int rounds, const QString& figures, const QString& putts)
{
    return u"alone 0; rounds %1; figures %2; putts %3"_s.arg(rounds).arg(figures, putts);
}

const QString no_putts = u"0 0 0 0 0 0"_s;
const QString old_putts = u"9 9 9 0 0 0"_s;

/// A store with a round whose first hole has the old figures and putts, and a watch on its commits.
struct old_round {
    old_round()
    {
        round.store.add_round(key_of_keyed_round());
        round.store.store.write({u"update games set long_1 = 9, approach_1 = 9, putt_1 = 9, missed_1 = 9, "
                                 u"pen_water_1 = 9, pen_lost_1 = 9, pen_rule_1 = 9, pen_bounds_1 = 9"_s,
                                 u"update games2 set fairway_1 = 9, sand_1 = 9, recovery_1 = 9, "
                                 u"putt_len_1_1 = 9, putt_len_1_2 = 9, putt_len_1_3 = 9"_s});
    }

    golfer_store round;
    commit_watch watch{[this] { return state_of(round.store, 1); }};
};

/// Creates a watch in the window thread, to which the connection belongs.
std::unique_ptr<commit_watch> watch_from_now(hand& user, const round_store& store)
{
    std::unique_ptr<commit_watch> watch;
    user.look([&] { watch = std::make_unique<commit_watch>([&store] { return state_of(store, 1); }); });
    return watch;
}

void compare_all(const commit_watch& watch, const QString& wanted)
{
    QVERIFY(!watch.states().empty());
    for (const QString& seen : watch.states())
        QCOMPARE(seen, wanted);
}

}  // namespace

/// The state that another program can read after each commit of a save.
class test_round_commits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void the_first_save_of_a_round_is_one_commit()
    {
        const golfer_store round;
        const commit_watch watch([&] { return state_of(round.store, 1); });
        in_keyed_round([&](hand& user) {
            user.type(new_keys);
            user.click_tab(hole_tabs, 2);
            user.same(static_cast<int>(watch.states().size()), 1, u"commits"_s);
            discard(user);
        });
        compare_all(watch, state(1, new_figures, no_putts));
    }

    void a_changed_hole_is_stored_by_one_commit()
    {
        const old_round stored;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            user.type(new_keys);
            user.click_tab(hole_tabs, 2);
            user.same(static_cast<int>(stored.watch.states().size()), 1, u"commits"_s);
            discard(user);
        });
        compare_all(stored.watch, state(1, new_figures, old_putts));
    }

    void figures_and_putts_of_detailed_shots_are_stored_by_one_commit()
    {
        const old_round stored;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            user.click_tab(hole_tabs, 2);
            open_quick_page(user);
            discard(user);
        });
        check_old_or_new(stored.watch);
    }

    void OK_stores_the_hole_on_the_detailed_page_by_one_commit()
    {
        const old_round stored;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            open_detailed_page(user);
            enter_hole(user);
            accept(user);
        });
        check_old_or_new(stored.watch);
    }

    void a_missing_cost_row_is_added_by_the_same_commit()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        std::size_t commits = 0;
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            round.store.store.write(u"delete from cost"_s);
            const auto watch = watch_from_now(user, round.store);
            user.look([] { data_environment().rscost.Requery(); });
            user.type(new_keys);
            user.click_tab(hole_tabs, 2);
            commits = watch->states().size();
            user.same(watch->states().back(), state(1, new_figures, no_putts), u"committed"_s);
            discard(user);
        });
        QCOMPARE(commits, std::size_t(1));
    }

    void a_save_that_changes_nothing_commits_nothing_and_needs_no_lock()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            // The first save of a hole writes its columns, which were Null.
            for (const int hole : {2, 3, 2})
                user.click_tab(hole_tabs, hole);
            const auto watch = watch_from_now(user, round.store);
            const other_program other(data_environment().connection.location());
            user.click_tab(hole_tabs, 3);
            user.same(static_cast<int>(watch->states().size()), 0, u"commits"_s);
            discard(user);
        });
    }

    /// `games2` is written before `games`.
    void a_failing_statement_keeps_what_the_earlier_one_has_written()
    {
        const golfer_store round;
        round.store.add_round(key_of_keyed_round());
        in_stored_round(key_of_keyed_round(), [&](hand& user) {
            round.store.store.write(refuse(u"update"_s, u"games"_s));
            user.type(new_keys);
            with_round(user, [&](f_new_round& window) {
                const auto failure = failure_of([&] { window.save_round(true); });
                QVERIFY(failure == failure_kind::store_other);
            });
            round.store.store.write(refuse_no_more());
            discard(user);
        });
        QCOMPARE(round.store.of_round(u"games2"_s, u"fairway_1"_s), u"4"_s);
        QCOMPARE(round.store.of_round(u"games"_s, u"long_1"_s), u"null"_s);
    }

private:
    /// Each commit shows the old figures, as the shots are committed one by one, or the new ones.
    static void check_old_or_new(const commit_watch& watch)
    {
        QVERIFY(!watch.states().empty());
        int new_ones = 0;
        for (const QString& seen : watch.states()) {
            const bool is_new = seen == state(1, entered_figures, entered_putts);
            new_ones += is_new ? 1 : 0;
            QVERIFY2(is_new || (new_ones == 0 && seen == state(1, old_figures, old_putts)), qPrintable(seen));
        }
        QCOMPARE(watch.states().back(), state(1, entered_figures, entered_putts));
    }
};

QTEST_MAIN(test_round_commits)
#include "test_round_commits.moc"
