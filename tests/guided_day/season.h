#pragma once

#include "tests/guided_day/visit.h"

/// A season is looked back on: a diary of a few dozen rounds, told shot by shot by an invented golfer on
/// published courses, and every report of it.
namespace verdane::guided_day {

constexpr int rounds_of_season = 36;

// The scenes, in the order in which they are played.
/// The golf bag gets its averages from the season.
void keep_averages(visit& now);
/// The scorecard of a course, with the distances of the clubs.
void print_scorecard(visit& now);
/// The four statistics over the whole season.
void print_statistics(visit& now);

/// Chooses the whole season in the two lists of rounds.
void choose_season(visit& now);

}  // namespace verdane::guided_day
