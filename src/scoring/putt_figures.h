#pragma once

#include "base/language.h"
#include "scoring/putt_counts.h"

/// The figures of the putt statistics, computed from the counts. Pure functions.
namespace verdane {

struct putt_totals {
    /// Holes by their number of putts.
    checked_array<tally, most_putts_counted, 1> row_total;
    /// Holes by the band of their first putt.
    by_band<tally> col_total;
};

/// Mean number of putts on a hole; 0 where no hole counts.
struct putt_means {
    by_band<double> mean_band;
    double mean_all = 0;
};

putt_totals totals_of(const putt_counts& counts);
putt_means means_of(const putt_counts& counts, const putt_totals& totals);

/// The grades of all putts added up. Fails with `overflow` beyond 16 bits.
int16 graded_putts(const putt_counts& counts);
/// The number of putts that were graded.
int16 putt_count(const putt_counts& counts);

struct putt_figures {
    putt_counts counts;
    putt_means means;
    int16 graded = 0;
    int16 putts = 0;

    /// The mean grade of a putt; 0 without putts.
    double score() const;
    text_pair rating() const { return putt_rating(score(), putts); }
};

}  // namespace verdane
