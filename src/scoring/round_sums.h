#pragma once

#include "base/checked_array.h"
#include "base/counts.h"
#include "scoring/hole_arithmetic.h"
#include "scoring/hole_classes.h"
#include "scoring/limits.h"

/// The sums of the round statistics, hole by hole, added up from one hole of one round at a time. Pure
/// functions. A sum that exceeds 16 bits fails with `overflow`.
namespace verdane {

/// The last hole of the front nine.
constexpr int last_front_hole = nine_holes;

/// One value for each hole, indexed 1 to 18.
template <typename Value>
using by_hole = checked_array<Value, hole_count, 1>;

/// One hole of one round, as it was played. The statistics do not count recovery shots.
struct played_hole : hole_counts {
    int16 par = 0;
};

/// The sums over the rounds of a selection.
struct round_sums {
    int16 rounds = 0;

    by_hole<tally> strokes;
    by_hole<tally> water;
    by_hole<tally> lost;
    by_hole<tally> rule;
    by_hole<tally> bounds;
    by_hole<tally> penalties;
    by_hole<tally> fairway;
    by_hole<tally> sand;
    by_hole<tally> missed;

    /// Strokes less par. A hole that was not played counts as minus its par.
    by_hole<double> over;

    /// How many holes belong to each of the 24 classes, by the place of the class in the report
    /// (`summary_selector`). The entries of the three averages contain strokes.
    checked_array<by_hole<tally>, class_count, 1> classes;

    /// How many holes are counted in the averages of par 3, 4 and 5, by par.
    checked_array<by_hole<tally>, highest_par - lowest_par + 1, lowest_par> averaged;

    void add_round() { rounds = rounds + 1; }
    /// A failure names the hole.
    void add_hole(int h, const played_hole& hole);

private:
    void add_figures(int h, const played_hole& hole);
    void add_classes(int h, const played_hole& hole);
};

/// The place in the report of the average of par 3, 4 or 5. From class 6 on it is the number of the class.
constexpr int place_of_average(int par)
{
    return hole_class::average_of_par_3 - lowest_par + par;
}

}  // namespace verdane
