#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace verdane::bench {

/// Prints, once everything has run, the median of each measurement, that of its floor and their ratio.
class pair_reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    void print_pair(const std::string& name);

    /// Milliseconds of every repetition.
    std::map<std::string, std::vector<double>> times_;
    /// In the order of their first run.
    std::vector<std::string> names_;
};

}  // namespace verdane::bench
