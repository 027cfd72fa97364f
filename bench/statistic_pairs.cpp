#include "bench/statistic_pairs.h"

#include <QProgressBar>
#include <QStringList>

#include <benchmark/benchmark.h>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/stopwatch.h"
#include "scoring/limits.h"
#include "tests/support/full_diary.h"

namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

void time_statistic_on(benchmark::State& state, const statistic_pair& pair, const store_location& diary,
                       int rounds)
{
    const opened_store store(diary);
    const selection_arguments chosen = first_rounds(rounds, pair.clauses);
    QProgressBar bar;
    run_progress progress(bar);
    for (auto _ : state) {
        pair.prepare();
        const stopwatch watch;
        if (!pair.statistic(chosen, progress))
            state.SkipWithError("the selection has no round");
        state.SetIterationTime(watch.seconds());
    }
}

void time_statistic(benchmark::State& state, const statistic_pair& pair, const QString& path, int rounds)
{
    time_statistic_on(state, pair, store_location::file(path), rounds);
}

void time_floor(benchmark::State& state, const statistic_pair& pair, const QString& path, int rounds)
{
    const plain_store store(path);
    const selection_arguments chosen = first_rounds(rounds, pair.clauses);
    for (auto _ : state) {
        const stopwatch watch;
        pair.floor(store, chosen);
        state.SetIterationTime(watch.seconds());
    }
}

using timing = void (*)(benchmark::State&, const statistic_pair&, const QString&, int);

void register_full_and_half(const std::string& name, const statistic_pair& pair, timing time)
{
    register_timed(name, [=](benchmark::State& state) {
        time(state, pair, diaries_of_run().full(), testing::rounds_of_full_diary);
    });
    register_timed(name + "_half", [=](benchmark::State& state) {
        time(state, pair, diaries_of_run().half(), diaries::rounds_of_half);
    });
}

}  // namespace

selection_arguments first_rounds(int rounds, clause_form clauses)
{
    selection_arguments chosen;
    chosen.from_key = testing::key_in_diary(0);
    chosen.to_key = testing::key_in_diary(rounds - 1);
    chosen.weather_clause = clause_of(filter::weather, clauses, {});
    chosen.partner_clause = clause_of(filter::partner, clauses, {});
    chosen.course_clause = clause_of(filter::course, clauses, {});
    return chosen;
}

void register_statistic(const statistic_pair& pair)
{
    register_full_and_half(pair.name, pair, time_statistic);
    register_full_and_half(pair.name + "_floor", pair, time_floor);
    if (!diaries_of_run().on_source())
        return;
    register_timed(pair.name + on_source, [=](benchmark::State& state) {
        time_statistic_on(state, pair, *diaries_of_run().on_source(), testing::rounds_of_full_diary);
    });
}

QString columns_of_holes(const QString& prefix, const QString& suffix)
{
    QStringList columns;
    for (int h = 1; h <= hole_count; ++h)
        columns << u"%1_%2%3"_s.arg(prefix).arg(h).arg(suffix);
    return columns.join(u',');
}

}  // namespace verdane::bench
