#pragma once

#include <benchmark/benchmark.h>

#include <string>

/// The pairs. Each registers a measurement under a name, and its floor under that name with the suffix
/// "_floor". Both measure wall-clock time.
namespace verdane::bench {

/// Registers a measurement that reports times itself, in milliseconds.
template <typename Measurement>
void register_timed(const std::string& name, const Measurement& measurement)
{
    benchmark::RegisterBenchmark(name.c_str(), measurement)->UseManualTime()->Unit(benchmark::kMillisecond);
}

/// The suffix of a measurement on the registered data source. The one without it, on a file, is its
/// comparison.
inline const std::string on_source = "_on_source";

void register_start();
void register_round_list();
void register_hole();
void register_next_shot();
void register_detailed_hole();
void register_detailed_round();
void register_round_statistics();
void register_putt_statistics();
void register_club_statistics();
void register_cost_statistics();
void register_report_pages();

}  // namespace verdane::bench
