#pragma once

#include <functional>

#include "base/counts.h"
#include "scoring/putt_bands.h"

/// The counts of the putt statistics. Pure functions.
namespace verdane {

/// Putts of one or several rounds. A sum that exceeds 16 bits fails with `overflow`.
struct putt_counts {
    /// Holes by their number of putts (1 to 5) and by the band of the first one's length.
    checked_array<by_band<tally>, most_putts_counted, 1> putts_by_first;
    /// Putts by the band in which they started and by the band in which they stopped.
    by_band<by_band<tally>> stop_by_start;
    /// At least one hole has a first putt.
    bool any_putt = false;

    void add(const putt_counts& round);
};

/// The length of a putt in feet by its index from 0: six entries for each hole in turn, 0 where there was
/// no putt.
using putt_length_at = std::function<int16(int place)>;

/// Counts the putts of one round. Only a length of 0 or less ends the putts of a hole: after six lengths
/// above 0 the next length is that of the next hole, and the count of six or more putts fails with
/// `subscript`. `length` is called only for the entries that are needed.
putt_counts scan_round_putts(const putt_length_at& length);

}  // namespace verdane
