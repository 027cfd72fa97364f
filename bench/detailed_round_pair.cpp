#include <benchmark/benchmark.h>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/plain_store.h"
#include "bench/round_in_window.h"
#include "bench/stopwatch.h"
#include "round/f_new_round.h"

/// Opening a detailed round of a full diary: from the list's command until its window is painted, and
/// from the click on the detailed page until its shots are. The floor reads what is then displayed.
namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int round_in_diary = 183;

void open_detailed_round(benchmark::State& state, const store_location& diary)
{
    const opened_store store(diary);
    for (auto _ : state) {
        open_tables_of_list();
        const stopwatch watch;
        in_round_window(testing::key_in_diary(round_in_diary), [&](f_new_round&) {
            Form::paint_now();
            state.SetIterationTime(watch.seconds());
        });
    }
}

void open_detailed_page(benchmark::State& state)
{
    const opened_store store(diaries_of_run().full());
    for (auto _ : state) {
        open_tables_of_list();
        in_round_window(testing::key_in_diary(round_in_diary), [&](f_new_round& window) {
            Form::paint_now();
            const stopwatch watch;
            click_tab_of_shots(window);
            Form::paint_now();
            state.SetIterationTime(watch.seconds());
        });
    }
}

void read_all(QSqlQuery rows)
{
    while (rows.next())
        benchmark::DoNotOptimize(rows.value(0));
}

void read_shots_of_first_hole(const plain_store& store, const QString& key)
{
    read_all(store.run(u"select * from Stat_rounds where date = ? and hole = 1 order by shot"_s, {key}));
}

void open_detailed_round_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().full());
    const QString key = testing::key_in_diary(round_in_diary);
    for (auto _ : state) {
        const stopwatch watch;
        for (const QString& table : {u"games"_s, u"games2"_s, u"cost"_s})
            read_all(store.run(u"select * from %1 where date = ?"_s.arg(table), {key}));
        for (const QString& table : {u"vrd_fields"_s, u"field_info"_s, u"partners"_s})
            read_all(store.run(u"select * from " + table));
        read_shots_of_first_hole(store, key);
        state.SetIterationTime(watch.seconds());
    }
}

void open_detailed_page_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().full());
    const QString key = testing::key_in_diary(round_in_diary);
    for (auto _ : state) {
        const stopwatch watch;
        read_shots_of_first_hole(store, key);
        read_all(store.run(u"select * from sticknames"_s));
        state.SetIterationTime(watch.seconds());
    }
}

}  // namespace

void register_detailed_round()
{
    register_timed("open_detailed_round", [](benchmark::State& state) {
        open_detailed_round(state, store_location::file(diaries_of_run().full()));
    });
    if (diaries_of_run().on_source())
        register_timed("open_detailed_round" + on_source, [](benchmark::State& state) {
            open_detailed_round(state, *diaries_of_run().on_source());
        });
    register_timed("open_detailed_round_floor", open_detailed_round_floor);
    register_timed("open_detailed_page", open_detailed_page);
    register_timed("open_detailed_page_floor", open_detailed_page_floor);
}

}  // namespace verdane::bench
