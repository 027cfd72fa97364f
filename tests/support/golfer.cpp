#include "tests/support/golfer.h"

#include <algorithm>
#include <cstdlib>

namespace verdane::testing {

namespace {

constexpr int putter = 14;
/// How far each club but the putter carries, in yards.
constexpr std::array<int, putter - 1> carry{225, 210, 200, 190, 180, 170, 160, 150, 140, 130, 115, 95, 70};
/// Shots from this distance or less are approach shots.
constexpr int approach_range = 120;
constexpr int green_radius = 10;
constexpr int most_putts = 6;

/// The club with the shortest carry that reaches that far; the driver if none does.
int club_for(int yards)
{
    int club = 1;
    while (club < putter - 1 && carry.at(static_cast<std::size_t>(club)) >= yards)
        ++club;
    return club;
}

}  // namespace

int golfer::pick(int first, int last)
{
    // Not std::uniform_int_distribution, whose results differ between standard libraries.
    return first + static_cast<int>(engine_() % static_cast<unsigned>(last - first + 1));
}

played_shots golfer::play(int yards)
{
    played_shots shots;
    int left = yards;
    while (shots.empty() || !shots.back().in_feet) {
        shots.push_back(strike(left, shots.empty()));
        left = shots.back().after;
    }
    putt_out(shots);
    return shots;
}

played_shot golfer::strike(int yards, bool from_tee)
{
    played_shot shot;
    shot.before = yards;
    shot.kind = yards > approach_range ? 1 : 2;
    shot.club = club_for(yards);
    shot.sand = !from_tee && once_in(14);
    shot.fairway = once_in(3) ? pick(2, 3) : 1;
    const int wanted = std::min(yards, carry.at(static_cast<std::size_t>(shot.club - 1)));
    const int error = std::max(4, wanted / 6);
    const int rest = yards - wanted * pick(82, 100) / 100 + pick(-error, error);
    shot.beyond = rest < 0;
    shot.after = std::abs(rest);
    add_mishap(shot);
    if (shot.penalty == 0 && !shot.missed && !shot.no_gain && shot.after <= green_radius)
        reach_green(shot, shot.after);
    return shot;
}

void golfer::add_mishap(played_shot& shot)
{
    if (once_in(45)) {
        shot.penalty = pick(1, 4);
        shot.after = shot.before;
    } else if (once_in(18)) {
        shot.missed = true;
        shot.after = std::max(1, shot.before - std::min(30, shot.before / 2));
    } else if (once_in(40)) {
        shot.no_gain = true;
        shot.after = shot.before;
    }
    if (shot.after == shot.before || shot.missed)
        shot.beyond = false;
    shot.after = std::max(1, shot.after);
}

void golfer::reach_green(played_shot& shot, int yards)
{
    shot.in_feet = true;
    shot.chipped_in = shot.kind == 2 && once_in(60);
    shot.after = shot.chipped_in ? 0 : 3 * std::max(1, yards);
}

void golfer::putt_out(played_shots& shots)
{
    for (int putt = 1; shots.back().after > 0; ++putt) {
        played_shot shot;
        shot.before = shots.back().after;
        shot.kind = 3;
        shot.club = putter;
        shot.fairway = 0;
        shot.in_feet = true;
        const bool holed = putt == most_putts || pick(0, 6 + shot.before) < 6;
        shot.after = holed ? 0 : std::min(shot.before, pick(1, 1 + shot.before / 5));
        shot.beyond = !holed && once_in(3);
        shots.push_back(shot);
    }
}

}  // namespace verdane::testing
