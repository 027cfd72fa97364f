#pragma once

#include <QString>

#include <optional>
#include <vector>

/// The computation of the handicap step by step, as the report explains it. Pure functions; the rules are
/// those of `handicap.h`.
namespace verdane {

/// The handicap of some rounds with all figures that lead to it.
struct handicap_steps {
    /// How many of the best differentials count; 0 if there are too few rounds.
    int take = 0;
    /// One entry for each round: 1 for the best differential, 2 for the next, and 0 for a differential that
    /// does not count. Of equal differentials the earlier one is the better one.
    std::vector<int> ranks;
    /// Of the differentials that count. 0 if there is none.
    double sum = 0;
    double mean = 0;
    double factor = 1;
    double product = 0;
    /// The rounded figure as the report table has it, or "N/A".
    QString text;
};

/// The steps for the differentials of rounds in order of time.
handicap_steps steps_of_handicap(const std::vector<double>& differentials);

/// The handicap after each round: over that round and all rounds before it. No value where it is "N/A".
std::vector<std::optional<double>> handicaps_over_time(const std::vector<double>& differentials);

/// One step of the ladder: how many differentials count for `first` to `last` rounds.
struct ladder_step {
    int first = 0;
    int last = 0;
    int take = 0;
};

/// The whole ladder from 0 rounds to the limit of the diary.
std::vector<ladder_step> handicap_ladder();

/// The least number of rounds that have a handicap.
int least_rounds_of_handicap();

}  // namespace verdane
