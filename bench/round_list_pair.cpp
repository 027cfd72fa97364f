#include <QTimer>

#include <benchmark/benchmark.h>

#include "bench/diaries.h"
#include "bench/pairs.h"
#include "bench/plain_store.h"
#include "bench/stopwatch.h"
#include "management/f_games.h"

/// The list of all rounds, from the command to its painted window. The floor reads the same rows.
namespace verdane::bench {

using namespace Qt::StringLiterals;

namespace {

void round_list(benchmark::State& state)
{
    const opened_store store(diaries_of_run().full());
    for (auto _ : state) {
        const stopwatch watch;
        f_games window;
        QTimer::singleShot(0, &window, [&] {
            Form::paint_now();
            state.SetIterationTime(watch.seconds());
            window.closeForm();
        });
        window.show_modal();
    }
}

void round_list_floor(benchmark::State& state)
{
    const plain_store store(diaries_of_run().full());
    for (auto _ : state) {
        const stopwatch watch;
        QSqlQuery rounds =
            store.run(u"select date, field, long_18, approach_18, putt_18 from games order by date"_s);
        while (rounds.next()) {
            for (int column = 0; column < 5; ++column)
                benchmark::DoNotOptimize(rounds.value(column));
        }
        state.SetIterationTime(watch.seconds());
    }
}

}  // namespace

void register_round_list()
{
    register_timed("round_list", round_list);
    register_timed("round_list_floor", round_list_floor);
}

}  // namespace verdane::bench
