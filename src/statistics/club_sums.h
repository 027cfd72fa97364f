#pragma once

#include <optional>

#include "checked_array.h"
#include "counts.h"
#include "shot_words.h"

/// What the club statistics add up, shot by shot. Everything here is pure.
namespace verdane {

/// A shot that is no putt, as the diary holds it. A length that was not typed yet is absent.
struct club_shot {
    int16 club = 0;
    std::optional<int16> before;
    std::optional<int16> after;
    /// `after` is in yards; else it is in feet, the shot having reached the green. `before` is in yards.
    bool after_in_yards = true;
    bool beyond_hole = false;
    bool missed = false;
    bool sand = false;
    bool no_gain = false;
    int16 position = 0;
    int16 penalty = 0;
    int16 kind = 0;
};

/// True when the shot says how far the club goes: it was struck well, from the ground, and counted.
/// Shots into the water and lost balls did go their way and stay.
bool is_clean(const club_shot& shot);

/// How far the ball flew, in whole yards, ties to even. A ball past the hole flew the way to the hole
/// and the rest on top of it; a missing rest is none. Fails with `overflow`, and with `invalid_null` when
/// the length before the shot is absent.
int16 shot_distance(const club_shot& shot);

/// The sums of one club. A count beyond 16 bits fails with `overflow`; that of all shots has 32.
struct club_sums {
    int32 shots = 0;
    int16 clean_shots = 0;
    double distance_sum = 0;
    int16 longest = 0;
    int16 in_fairway = 0;
    int16 left = 0;
    int16 right = 0;
    int16 missed = 0;
    int16 penalised = 0;
    int16 holed = 0;

    void add(const club_shot& shot);
};

/// The sums of every club by its number, 1 to 14; 0 takes the shots without a club. A shot with another
/// number fails with `subscript`.
using bag_sums = checked_array<club_sums, putter + 1>;

}  // namespace verdane
