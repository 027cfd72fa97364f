#pragma once

#include <optional>

#include "base/checked_array.h"
#include "base/counts.h"
#include "scoring/limits.h"

/// The sums of the club statistics over shots. Pure functions.
namespace verdane {

/// A shot other than a putt, as stored. A length that was not typed yet is absent.
struct club_shot {
    int16 club = 0;
    std::optional<int16> before;
    std::optional<int16> after;
    /// Unit of `after`: yards, or feet if the shot reached the green. `before` is always in yards.
    bool after_in_yards = true;
    bool beyond_hole = false;
    bool missed = false;
    bool sand = false;
    bool no_gain = false;
    int16 position = 0;
    int16 penalty = 0;
    int16 kind = 0;
};

/// True when the shot shows how far the club carries: it was not missed, not from sand, gained distance and
/// was not replayed. Shots into the water and lost balls count.
bool is_clean(const club_shot& shot);

/// The distance covered, in whole yards, ties to even: `before` minus `after`, or their sum for a ball
/// past the hole. An absent `after` counts as 0. Fails with `overflow`, and with `invalid_null` when
/// the length before the shot is absent.
int16 shot_distance(const club_shot& shot);

/// The sums of one club. A count that exceeds 16 bits fails with `overflow`; the number of shots has 32 bits.
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

/// The sums of every club by its number, 1 to 14; shots without a club are under 0. A shot with another
/// number fails with `subscript`.
using bag_sums = checked_array<club_sums, club_count + 1>;

}  // namespace verdane
