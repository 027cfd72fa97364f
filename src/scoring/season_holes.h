#pragma once

#include "scoring/season_rounds.h"

namespace verdane {

/// One hole of a course over the rounds in which it was played.
struct season_hole {
    QString course_code;
    QString course;
    int hole = 0;
    int par = 0;
    int plays = 0;
    /// Mean strokes less par.
    double mean_over = 0;
};

/// The best and the worst holes of a season. No hole is in both lists.
struct ranked_holes {
    /// How often a hole must have been played to be ranked: three times, or less often if no hole was played
    /// three times.
    int least_plays = 0;
    /// How many holes are ranked.
    int candidates = 0;
    /// The best one first. At most five.
    std::vector<season_hole> best;
    /// The worst one first. At most five.
    std::vector<season_hole> worst;
};

/// Holes with the same mean are sorted in both lists by the number of plays, the highest first, then by
/// course and hole.
ranked_holes holes_of_season(const season_rounds& rounds);

}  // namespace verdane
