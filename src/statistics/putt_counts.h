#pragma once

#include <functional>

#include "putt_bands.h"
#include "round_sums.h"

/// What the putt statistics count. Everything here is pure.
namespace verdane {

/// The most putts that a hole may hold.
constexpr int most_putts = 5;

/// Putts of one round or of several. A sum beyond 16 bits fails with `overflow`.
struct putt_counts {
    /// Holes by their number of putts (1 to 5) and by the band of the first one's length.
    checked_array<by_band<tally>, most_putts, 1> putts_by_first;
    /// Putts by the band in which they started and by the band in which they stopped.
    by_band<by_band<tally>> stop_by_start;
    /// At least one hole has a first putt.
    bool any_putt = false;

    void add(const putt_counts& round);
};

/// The length of a putt in feet, by its place from 0: six places a hole, hole after hole, 0 where there
/// was no putt.
using putt_length_at = std::function<int16(int place)>;

/// Counts the putts of one round. A hole's putts end at the first length of 0, and nothing else ends
/// them: six lengths above 0 are read on into the next hole's, and the count of six putts then fails
/// with `subscript`. `length` is asked for what is needed only.
putt_counts scan_round_putts(const putt_length_at& length);

}  // namespace verdane
