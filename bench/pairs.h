#pragma once

#include <benchmark/benchmark.h>

/// The four pairs. Each registers what a user waits for under a name and its floor under the same name
/// with "_floor" behind it, both timed by the wall.
namespace verdane::bench {

/// Registers a measurement that takes its own times, told in milliseconds.
inline void register_timed(const char* name, void (*measurement)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, measurement)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void register_start();
void register_round_list();
void register_hole();
void register_statistics();

}  // namespace verdane::bench
