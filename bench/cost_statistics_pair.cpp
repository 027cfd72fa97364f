#include <benchmark/benchmark.h>

#include <array>

#include "bench/pairs.h"
#include "bench/statistic_pairs.h"
#include "statistics/cost_statistics.h"

/// The statistics of costs. The statistic only copies rows; the report adds them up.
namespace verdane::bench {

namespace {

constexpr std::size_t amounts = 12;

void read_and_add_up(const plain_store& store, const selection_arguments& chosen)
{
    std::array<int, amounts> sums{};
    QSqlQuery rounds = store.run(Statistics::cost_select(chosen));
    while (rounds.next()) {
        benchmark::DoNotOptimize(rounds.value(0).toString());
        int column = 1;
        for (int& sum : sums)
            sum += rounds.value(column++).toInt();
    }
    benchmark::DoNotOptimize(sums);
}

}  // namespace

void register_cost_statistics()
{
    register_statistic({"cost_statistics", Statistics::fill_r_cost, read_and_add_up, clause_form::appended,
                        Statistics::empty_cost_report});
}

}  // namespace verdane::bench
