#pragma once

#include <functional>

#include "scoring/putt_bands.h"
#include "scoring/round_sums.h"

/// The counts of the putt statistics. Pure functions.
namespace verdane {

/// The largest number of putts on a hole.
constexpr int most_putts = 5;

/// Putts of one or several rounds. A sum that exceeds 16 bits fails with `overflow`.
struct putt_counts {
    /// Holes by their number of putts (1 to 5) and by the band of the first one's length.
    checked_array<by_band<tally>, most_putts, 1> putts_by_first;
    /// Putts by the band in which they started and by the band in which they stopped.
    by_band<by_band<tally>> stop_by_start;
    /// At least one hole has a first putt.
    bool any_putt = false;

    void add(const putt_counts& round);
};

/// The length of a putt in feet by its index from 0: six entries for each hole in turn, 0 where there was
/// no putt.
using putt_length_at = std::function<int16(int place)>;

/// Counts the putts of one round. Only a length of 0 ends the putts of a hole: after six lengths above 0
/// reading continues with those of the next hole, and the count of six putts then fails with
/// `subscript`. `length` is called only for the entries that are needed.
putt_counts scan_round_putts(const putt_length_at& length);

}  // namespace verdane
