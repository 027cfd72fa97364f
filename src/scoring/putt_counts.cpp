#include "scoring/putt_counts.h"

#include "base/failure_subject.h"

namespace verdane {

namespace {

template <typename Table>
void add_cells(Table& sums, const Table& more)
{
    for (int row = Table::first_index; row <= Table::last_index; ++row) {
        for (int band = 1; band <= putt_band_count; ++band)
            sums[row][band].add(more[row][band].sum);
    }
}

void scan_hole(putt_counts& counts, int first_place, const putt_length_at& length)
{
    const int16 first = length(first_place);
    if (first <= 0)
        return;
    counts.any_putt = true;
    const int first_band = first_putt_band(first);
    int putts = 1;
    int start_band = first_band;
    for (;; ++putts) {
        const int16 left = length(first_place + putts);
        counts.stop_by_start[start_band][after_putt_band(left)].add(1);
        start_band = first_putt_band(left);
        if (left <= 0)
            break;
    }
    counts.putts_by_first[putts][first_band].add(1);
}

}  // namespace

void putt_counts::add(const putt_counts& round)
{
    add_cells(putts_by_first, round.putts_by_first);
    add_cells(stop_by_start, round.stop_by_start);
    any_putt = any_putt || round.any_putt;
}

putt_counts scan_round_putts(const putt_length_at& length)
{
    putt_counts counts;
    for (int h = 1; h <= hole_count; ++h)
        concerning([h] { return failure_subject{.list = limited_list::putts_of_a_hole, .hole = h}; },
                   [&] { scan_hole(counts, putt_lengths_kept * (h - 1), length); });
    return counts;
}

}  // namespace verdane
