#pragma once

#include "reports/query/report_tables.h"
#include "scoring/season_rounds.h"

namespace verdane::testing {

/// What an invented season has.
struct season_size {
    int rounds = 40;
    int courses = 3;
    /// Every ninth round ends after twelve holes, and the seventh one has no strokes.
    bool has_unfinished_rounds = true;
    /// No round has more holes.
    int most_holes = hole_count;
};

/// Rounds of a golfer who improves, about two in a week, on courses with names of different lengths. The same
/// size gives the same rounds.
season_rounds invented_season(const season_size& size = {});

/// The rows that the statistics pass to the report for some rounds, and for the invented ones.
passed_rows tables_of(const season_rounds& rounds);
passed_rows invented_season_tables(const season_size& size = {});

}  // namespace verdane::testing
