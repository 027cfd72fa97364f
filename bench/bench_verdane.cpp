#include <QApplication>

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/pair_reporter.h"
#include "bench/pairs.h"
#include "shell/start_up.h"

namespace {

/// Defaults, which the command line can override: many short repetitions of all measurements in random
/// order, so that a busy moment of the machine affects a measurement and its floor alike.
std::vector<char*> with_defaults(int argc, char** argv)
{
    static char random_order[] = "--benchmark_enable_random_interleaving=true";
    static char repetitions[] = "--benchmark_repetitions=21";
    static char shortest[] = "--benchmark_min_time=0.05";
    std::vector<char*> words{argv[0], random_order, repetitions, shortest};
    words.insert(words.end(), argv + 1, argv + argc);
    return words;
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    verdane::prepare_application(application);
    std::vector<char*> words = with_defaults(argc, argv);
    int count = static_cast<int>(words.size());
    benchmark::Initialize(&count, words.data());
    if (benchmark::ReportUnrecognizedArguments(count, words.data()))
        return 1;
    verdane::bench::register_start();
    verdane::bench::register_round_list();
    verdane::bench::register_hole();
    verdane::bench::register_next_shot();
    verdane::bench::register_detailed_hole();
    verdane::bench::register_detailed_round();
    verdane::bench::register_round_statistics();
    verdane::bench::register_putt_statistics();
    verdane::bench::register_club_statistics();
    verdane::bench::register_cost_statistics();
    verdane::bench::register_report_pages();
    verdane::bench::pair_reporter reporter;
    // A filter that matches nothing is an error, such as that of a source that is not registered.
    const std::size_t run = benchmark::RunSpecifiedBenchmarks(&reporter);
    return run > 0 && reporter.all_worked() ? 0 : 1;
}
