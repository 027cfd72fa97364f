#include "pair_reporter.h"

#include <algorithm>
#include <cstdio>

namespace verdane::bench {

namespace {

double median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

bool is_floor(const std::string& name)
{
    constexpr std::string_view ending = "_floor";
    return name.size() > ending.size() && name.ends_with(ending);
}

}  // namespace

void pair_reporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const std::string& name = run.run_name.function_name;
        if (!times_.contains(name))
            names_.push_back(name);
        times_[name].push_back(run.real_accumulated_time / static_cast<double>(run.iterations) * 1000);
    }
    ConsoleReporter::ReportRuns(runs);
}

void pair_reporter::Finalize()
{
    ConsoleReporter::Finalize();
    std::printf("\n%-28s %10s %10s %7s %6s\n", "median of the repetitions", "ms", "floor ms", "ratio",
                "runs");
    std::sort(names_.begin(), names_.end());
    for (const std::string& name : names_) {
        if (!is_floor(name))
            print_pair(name);
    }
}

void pair_reporter::print_pair(const std::string& name)
{
    const double time = median(times_[name]);
    const auto floor = times_.find(name + "_floor");
    if (floor == times_.end()) {
        std::printf("%-28s %10.2f %10s %7s %6zu\n", name.c_str(), time, "-", "-", times_[name].size());
        return;
    }
    const double least = median(floor->second);
    std::printf("%-28s %10.2f %10.2f %7.2f %6zu\n", name.c_str(), time, least, time / least,
                times_[name].size());
}

}  // namespace verdane::bench
