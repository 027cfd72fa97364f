#pragma once

#include <QString>

#include <array>

#include "scoring/round_sums.h"

/// The rows of the round statistics, computed from the sums. Pure functions.
namespace verdane {

/// One row's figures.
struct stats_line {
    by_hole<double> holes;
    double front_nine = 0;
    double back_nine = 0;
    double all_holes = 0;
};

/// The sums unchanged, both nines and their total. The nines and the total are added in 16 bits and fail
/// with `overflow`.
stats_line line_of(const by_hole<tally>& sums);

/// Strokes. With more than one round `all_holes` is the mean score of a round; the holes and the nines are
/// sums.
stats_line strokes_line(const round_sums& sums);

/// Strokes less par, per round; zeros if there is no round.
stats_line over_line(const round_sums& sums);

/// Mean strokes on the holes of one par (3 to 5): whole numbers in the holes, ties to even, unrounded
/// in the nines and over all; 0 if no such hole was played.
stats_line average_line(const round_sums& sums, int par);

/// The holes of one class by its place, 1 to 24; for the averages the means.
by_hole<double> class_holes(const round_sums& sums, int place);

/// A row's holes with both nines and their total, added as decimals.
stats_line totalled(const by_hole<double>& holes);

/// "0" if `all_holes` of the strokes is a mean, one blank if it is the total of a single round.
QString average_mark(const round_sums& sums);

/// The figures of one hole over the shots of a selection, as the store counts them.
struct detailed_hole {
    double fairway = 0;
    double sand = 0;
    double missed = 0;
    double water = 0;
    double lost = 0;
    double rules = 0;
    double bounds = 0;
    double par = 0;
    double shots = 0;
    double added_penalties = 0;
    int16 hole = 0;
};

/// The figures of a hole in rows 1 to 9: the seven counts in their order, the penalties added, and the shots
/// and added penalties less par.
std::array<double, 9> detail_figures(const detailed_hole& hole);

}  // namespace verdane
