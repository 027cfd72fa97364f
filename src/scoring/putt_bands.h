#pragma once

#include "base/checked_array.h"
#include "base/counts.h"
#include "base/language.h"
#include "scoring/limits.h"

/// Rating of putts: seven bands of length, a grade for each pair of bands, words for the mean grade.
/// Lengths are in feet; band 1 is the longest. Pure functions.
namespace verdane {

/// One value for each band, indexed 1 to 7.
template <typename Value>
using by_band = checked_array<Value, putt_band_count, 1>;

/// The band of the length from which a putt starts, 1 (50 feet and more) to 7 (below 5).
int first_putt_band(int16 length);

/// The band of the length that remains after a putt, 1 (25 feet and more) to 7 (0 or 1).
int after_putt_band(int16 length);

/// The grade of a putt from the bands in which it starts and stops: 1 (best) to 10.
int putt_grade(int start_band, int stop_band);

/// The words for a mean grade over a number of putts; "N/A" without putts. A mean of exactly 3.7 has the
/// empty text: it is in none of the ranges.
text_pair putt_rating(double score, int16 putt_count);

}  // namespace verdane
