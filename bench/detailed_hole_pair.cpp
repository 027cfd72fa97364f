#include <QTest>

#include <benchmark/benchmark.h>

#include "bench/hole_leaving.h"
#include "bench/pairs.h"
#include "bench/plain_store.h"
#include "bench/round_in_window.h"
#include "round/shot_grid.h"

/// Leaving a hole on the detailed page, its first shot changed so that a figure changes in each wide row,
/// from the click on the next tab until the shots of that hole are in the grid. The floor is one plain commit
/// for the shot, one for both wide rows, and reading those shots.
namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

/// Chooses the other value of the cell by its first letter.
void change_cell(f_new_round& window, int column)
{
    auto& grid = dynamic_cast<shot_grid&>(*window.findChild<QWidget*>(u"details"_s));
    grid.set_Col(column);
    QTest::keyClick(&grid, grid.currentIndex().data().toString() == u"Yes" ? 'N' : 'Y');
}

/// Changes the first shot so that a figure changes in each wide row.
void change_first_shot(f_new_round& window)
{
    change_cell(window, shot_grid::missed_column);
    change_cell(window, shot_grid::zero_column);
}

void leave_detailed_hole(benchmark::State& state)
{
    leave_holes_of_stored_round(state, hole_seen::filled_in, on_detailed_page_of, change_first_shot);
}

void leave_detailed_hole_painted(benchmark::State& state)
{
    leave_holes_of_stored_round(state, hole_seen::painted, on_detailed_page_of, change_first_shot);
}

void read_shots(const plain_store& store, const QString& key, int hole)
{
    QSqlQuery shots =
        store.run(u"select * from Stat_rounds where date = ? and hole = ? order by shot"_s, {key, hole});
    while (shots.next())
        benchmark::DoNotOptimize(shots.value(0));
}

void leave_detailed_hole_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().with_free_keys());
    const QString key = testing::key_in_diary(round_of_left_holes);
    int step = 0;
    for (auto _ : state) {
        const int hole = step % hole_count + 1;
        const int figure = 2 + step / hole_count % 2;
        ++step;
        const stopwatch watch;
        store.run(u"update Stat_rounds set missed = ?, dz = ? where date = ? and hole = ? and shot = 1"_s,
                  {figure % 2, figure % 2, key, hole});
        store.run(u"begin"_s);
        store.run(u"update games2 set recovery_%1 = ? where date = ?"_s.arg(hole), {figure, key});
        store.run(u"update games set missed_%1 = ? where date = ?"_s.arg(hole), {figure, key});
        store.run(u"commit"_s);
        read_shots(store, key, hole % hole_count + 1);
        state.SetIterationTime(watch.seconds());
    }
}

}  // namespace

void register_detailed_hole()
{
    register_timed("leave_detailed_hole", leave_detailed_hole);
    register_timed("leave_detailed_hole_painted", leave_detailed_hole_painted);
    register_timed("leave_detailed_hole_floor", leave_detailed_hole_floor);
}

}  // namespace verdane::bench
