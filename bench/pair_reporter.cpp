#include "bench/pair_reporter.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace verdane::bench {

namespace {

constexpr const char* floor_ending = "_floor";
constexpr const char* half_ending = "_half";
constexpr const char* source_ending = "_on_source";

double median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void print_head(const char* what, const char* beside, const char* ratio)
{
    std::printf("\n%-28s %10s %10s %7s %6s\n", what, "ms", beside, ratio, "runs");
}

}  // namespace

void pair_reporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        all_worked_ = all_worked_ && !run.error_occurred;
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
    std::sort(names_.begin(), names_.end());
    print_head("median of the repetitions", "floor ms", "ratio");
    for (const std::string& name : names_) {
        if (!name.ends_with(floor_ending) && !name.ends_with(half_ending) && !name.ends_with(source_ending))
            print_beside(name, name + floor_ending);
    }
    print_head("on the registered source", "file ms", "ratio");
    for (const std::string& name : names_) {
        if (name.ends_with(source_ending))
            print_beside(name, name.substr(0, name.size() - std::string_view(source_ending).size()));
    }
    print_head("twice the rounds", "half ms", "growth");
    for (const std::string& name : names_) {
        if (times_.contains(name + half_ending))
            print_beside(name, name + half_ending);
    }
}

void pair_reporter::print_beside(const std::string& name, const std::string& other)
{
    const double time = median(times_[name]);
    const std::size_t runs = times_[name].size();
    const auto found = times_.find(other);
    if (found == times_.end()) {
        std::printf("%-28s %10.2f %10s %7s %6zu\n", name.c_str(), time, "-", "-", runs);
        return;
    }
    const double least = median(found->second);
    std::printf("%-28s %10.2f %10.2f %7.2f %6zu\n", name.c_str(), time, least, time / least, runs);
}

}  // namespace verdane::bench
