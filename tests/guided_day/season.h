#pragma once

#include "tests/guided_day/visit.h"

/// The reports on a season: a diary of a few dozen rounds, entered shot by shot by a simulated golfer on
/// published courses.
namespace verdane::guided_day {

constexpr int rounds_of_season = 36;

// The scenes, in the order in which they are played.
/// Computes and stores the averages of the golf bag from the season.
void store_averages(visit& now);
/// Prints the scorecard of a course with the distances of the clubs.
void print_scorecard(visit& now);
/// Prints the four statistics of the whole season.
void print_statistics(visit& now);

/// Chooses the whole season in the two lists of rounds.
void choose_season(visit& now);

}  // namespace verdane::guided_day
