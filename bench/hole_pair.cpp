#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <benchmark/benchmark.h>

#include "bench/hole_leaving.h"
#include "bench/pairs.h"
#include "bench/plain_store.h"
#include "bench/round_in_window.h"

/// Leaving a hole of which two figures were changed, one in each wide row, from the click on the next
/// tab until that hole is in the boxes, and until it is painted. The floor is two plain statements and their
/// commit.
namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

/// Types a digit that differs from the one in the box.
void change_figure(const f_new_round& window, const QString& name)
{
    QLineEdit& box = *window.findChild<QLineEdit*>(name);
    const char digit = box.text() == u"2" ? '3' : '2';
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, digit);
}

void change_figures(f_new_round& window)
{
    change_figure(window, u"text_vrd_0"_s);
    change_figure(window, u"text_p_3"_s);
}

void leave_hole(benchmark::State& state)
{
    leave_holes_of_stored_round(state, hole_seen::filled_in, in_round_window, change_figures);
}

void leave_hole_of_full_diary(benchmark::State& state)
{
    leave_holes_of_stored_round(state, hole_seen::filled_in, in_round_window, change_figures,
                                store_location::file(diaries_of_run().full()));
}

void leave_hole_of_full_diary_on_source(benchmark::State& state)
{
    leave_holes_of_stored_round(state, hole_seen::filled_in, in_round_window, change_figures,
                                diaries_of_run().on_source());
}

void leave_hole_painted(benchmark::State& state)
{
    leave_holes_of_stored_round(state, hole_seen::painted, in_round_window, change_figures);
}

void leave_hole_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().with_free_keys());
    QSqlQuery row =
        store.run(u"select rowid from games where date = ?"_s, {testing::key_in_diary(round_of_left_holes)});
    row.next();
    const QVariant number = row.value(0);
    row.finish();
    int step = 0;
    for (auto _ : state) {
        const int hole = step % hole_count + 1;
        const int figure = 2 + step / hole_count % 2;
        ++step;
        const stopwatch watch;
        store.run(u"begin"_s);
        store.run(u"update games2 set fairway_%1 = ? where rowid = ?"_s.arg(hole), {figure, number});
        store.run(u"update games set long_%1 = ? where rowid = ?"_s.arg(hole), {figure, number});
        store.run(u"commit"_s);
        state.SetIterationTime(watch.seconds());
    }
}

}  // namespace

void register_hole()
{
    register_timed("leave_hole", leave_hole);
    // The source has the full diary, so its file has to have the same.
    if (diaries_of_run().on_source()) {
        register_timed("leave_hole_of_full_diary", leave_hole_of_full_diary);
        register_timed("leave_hole_of_full_diary" + on_source, leave_hole_of_full_diary_on_source);
    }
    register_timed("leave_hole_painted", leave_hole_painted);
    register_timed("leave_hole_floor", leave_hole_floor);
}

}  // namespace verdane::bench
