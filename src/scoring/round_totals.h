#pragma once

#include <QString>

#include "base/counts.h"

/// Gross, par and score differential of a round. Pure functions.
namespace verdane {

/// Strokes and par of the holes added so far.
struct round_totals {
    int16 gross = 0;
    int16 par = 0;

    /// Adds one hole. Fails with `overflow` if a sum exceeds 16 bits.
    void add_hole(int16 hole_gross, int16 hole_par);

    /// Gross less par. Fails with `overflow`.
    int16 over_par() const;
};

/// The score differential: the strokes above the rating of the course, scaled by its slope,
/// (gross - rating) * 113 / slope; 0 if the slope is 0.
double differential(int16 gross, double rating, double slope);

/// The gross less the whole part of the differential of the round, rounded down (-2 for -1.2). A whole
/// number.
double net_score(int16 gross, double differential);

/// The first five characters of the differential's text, trimmed: "16.95", "-10", "0".
QString differential_text(double differential);

}  // namespace verdane
