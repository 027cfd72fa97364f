#pragma once

#include <QString>

#include <optional>

#include "base/counts.h"

/// The handicap of a player: the mean of the best score differentials (`round_totals.h`), times 0.96.
namespace verdane {

/// The handicap ladder: how many of the best differentials count, by the number of rounds. 0 below five
/// rounds, 10 from twenty rounds on.
int16 handicap_take(int16 rounds);

/// What the mean of `take` differentials is multiplied by: 0.96, or 1 for a single differential, which counts
/// whole.
double handicap_factor(int take);

/// The handicap for the sum of the `take` best differentials as a number: their mean times the factor,
/// rounded to one decimal place (ties to even). No value if the rounded figure is exactly 0 or `take` is 0.
std::optional<double> handicap_figure(int16 take, double sum);

/// The handicap for the sum of the `take` best differentials, as text: their mean, times 0.96 if there is
/// more than one, rounded to one decimal place (ties to even), in the plain number text form. "N/A" if the
/// rounded figure is exactly 0 or `take` is 0.
QString handicap_text(int16 take, double sum);

}  // namespace verdane
