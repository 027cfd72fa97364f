#include "transfer/sample_golfer.h"

#include <algorithm>
#include <cstdlib>

#include "base/language.h"
#include "scoring/words.h"

namespace verdane {

namespace {

/// The greatest distance from which the golfer plays an approach.
constexpr int longest_approach_yards = 130;
/// A ball that is not farther from the hole is on the green.
constexpr int green_yards = 9;
constexpr int driver = 1;
constexpr int most_putts = 3;

/// The longest club whose average does not exceed the distance. The driver is used from the tee only.
int club_for(int yards, bool with_driver)
{
    const int last_club = club_count - 1;
    for (int club = with_driver ? driver : driver + 1; club < last_club; ++club) {
        if (sample_averages.at(static_cast<std::size_t>(club - 1)) <= yards)
            return club;
    }
    return last_club;
}

hole_shot shot_with(int kind, int club)
{
    hole_shot shot;
    shot.shot_type_value = kind;
    shot.stickval = club;
    return shot;
}

}  // namespace

int sample_golfer::pick(int lowest, int highest)
{
    return lowest + static_cast<int>(random_() % static_cast<unsigned>(highest - lowest + 1));
}

hole_shot sample_golfer::play_long(int& yards, bool from_tee, int par)
{
    const int kind = yards > longest_approach_yards || from_tee ? long_shot : approach_shot;
    hole_shot shot = shot_with(kind, club_for(yards, from_tee && par > lowest_par));
    const int average = sample_averages.at(static_cast<std::size_t>(plain(shot.stickval) - 1));
    int carry = std::min(average * pick(88, 108) / 100, yards + pick(-8, 8));
    shot.fairval = once_in(3) ? pick(to_the_left, to_the_right) : in_the_fairway;
    shot.ts = !from_tee && once_in(12);
    if (once_in(9)) {
        shot.missed = true;
        shot.fairval = pick(to_the_left, to_the_right);
        carry /= 2;
    }
    if (kind == long_shot && once_in(22)) {
        shot.penval = pick(water_hazard, out_of_bounds);
        shot.dz = true;
        shot.fairval = pick(to_the_left, to_the_right);
        carry = 0;
    }
    const bool holed = kind == approach_shot && yards < average / 2 && once_in(12);
    yards = holed ? 0 : std::max(std::abs(yards - carry), pick(1, green_yards - 1));
    shot.after = yards;
    return shot;
}

void sample_golfer::play_on_green(shot_list& shots, int feet)
{
    for (int number = 1; feet > 0; ++number) {
        hole_shot shot = shot_with(putt, putter);
        const bool holed = number == most_putts || feet <= 2 || once_in(1 + feet / 4);
        feet = holed ? 0 : std::max(1, feet * pick(4, 18) / 100);
        shot.after = feet;
        shots.push_back(shot);
    }
}

shot_list sample_golfer::play(int yards, int par)
{
    shot_list shots;
    int left = yards;
    while (shots.empty() || left > green_yards)
        shots.push_back(play_long(left, shots.empty(), par));
    play_on_green(shots, left * feet_in_a_yard);
    check_shots(shots, yards, units_in(is_french));
    return shots;
}

}  // namespace verdane
