#include "scoring/putt_figures.h"

namespace verdane {

namespace {

/// Calls `take` for every cell of `stop_by_start` with its two bands and its count.
template <typename Take>
void for_each_stop(const putt_counts& counts, Take take)
{
    for (int start = 1; start <= putt_band_count; ++start) {
        for (int stop = 1; stop <= putt_band_count; ++stop)
            take(start, stop, counts.stop_by_start[start][stop].sum);
    }
}

double quotient_or_zero(double sum, int count)
{
    return count < 1 ? 0 : sum / count;
}

}  // namespace

putt_totals totals_of(const putt_counts& counts)
{
    putt_totals totals;
    for (int putts = 1; putts <= most_putts_counted; ++putts) {
        for (int band = 1; band <= putt_band_count; ++band) {
            totals.row_total[putts].add(counts.putts_by_first[putts][band].sum);
            totals.col_total[band].add(counts.putts_by_first[putts][band].sum);
        }
    }
    return totals;
}

putt_means means_of(const putt_counts& counts, const putt_totals& totals)
{
    putt_means means;
    double all_putts = 0;
    int16 all_holes = 0;
    for (int band = 1; band <= putt_band_count; ++band) {
        double putts_of_band = 0;
        for (int putts = 1; putts <= most_putts_counted; ++putts)
            putts_of_band += putts * plain(counts.putts_by_first[putts][band].sum);
        means.mean_band[band] = quotient_or_zero(putts_of_band, plain(totals.col_total[band].sum));
    }
    for (int putts = 1; putts <= most_putts_counted; ++putts) {
        all_putts += putts * plain(totals.row_total[putts].sum);
        all_holes = all_holes + totals.row_total[putts].sum;
    }
    means.mean_all = quotient_or_zero(all_putts, plain(all_holes));
    return means;
}

int16 graded_putts(const putt_counts& counts)
{
    tally graded;
    for_each_stop(counts, [&graded](int start, int stop, int16 count) {
        const int16 grade = putt_grade(start, stop);
        graded.add(grade * count);
    });
    return graded.sum;
}

int16 putt_count(const putt_counts& counts)
{
    tally putts;
    for_each_stop(counts, [&putts](int, int, int16 count) { putts.add(count); });
    return putts.sum;
}

double putt_figures::score() const
{
    return quotient_or_zero(plain(graded), plain(putts));
}

}  // namespace verdane
