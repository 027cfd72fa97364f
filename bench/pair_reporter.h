#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace verdane::bench {

/// Prints, after all runs, the median of each measurement, that of its floor and their ratio;
/// those on the registered data source next to the same on a file (suffix "_on_source");
/// then the growth of those that are also measured on half of the rounds (suffix "_half").
class pair_reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// False if a measurement has reported an error.
    bool all_worked() const { return all_worked_; }

private:
    void print_beside(const std::string& name, const std::string& other);

    /// Milliseconds of every repetition.
    std::map<std::string, std::vector<double>> times_;
    std::vector<std::string> names_;
    bool all_worked_ = true;
};

}  // namespace verdane::bench
