#pragma once

#include <QString>

#include "base/counts.h"

/// What a round counts, and what many rounds make of a player's handicap. Everything here is pure.
namespace verdane {

/// Strokes and par of the holes added so far.
struct round_totals {
    int16 gross = 0;
    int16 par = 0;

    /// Adds one hole. Fails with `overflow` when a sum leaves its 16 bits.
    void add_hole(int16 hole_gross, int16 hole_par);

    /// Gross less par. Fails with `overflow`.
    int16 over_par() const;
};

/// How far a round was from the course's rating, scaled by its slope: (gross - rating) * 113 / slope,
/// or 0 when the slope is 0.
double differential(int16 gross, double rating, double slope);

/// The gross less the whole part of the round's own differential, the whole part taken downwards
/// (-2 for -1.2). A whole number.
double net_score(int16 gross, double differential);

/// The first five characters of the differential's text, trimmed: "16.95", "-10", "0".
QString differential_text(double differential);

/// How many of the best differentials make the handicap of `rounds` rounds: 0 below five, 10 from
/// twenty on.
int16 handicap_take(int16 rounds);

/// The handicap for the sum of the `take` best differentials: their mean, times 0.96 when there is
/// more than one, rounded to one decimal place (ties to even), in the plain number text form; "N/A"
/// when that is exactly 0 or `take` is 0.
QString handicap_text(int16 take, double sum);

}  // namespace verdane
