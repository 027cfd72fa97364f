#pragma once

#include <array>
#include <random>

#include "scoring/hole_shots.h"
#include "scoring/limits.h"

namespace verdane {

/// The average distances of the clubs of the sample in yards, by the number of the club from 1; 0 for the
/// putter.
inline constexpr std::array<int, club_count> sample_averages{212, 196, 183, 172, 163, 154, 145,
                                                             135, 125, 114, 101, 82,  60,  0};

/// An invented golfer. The same calls return the same shots on every machine.
class sample_golfer {
public:
    explicit sample_golfer(unsigned seed) : random_(seed) {}

    /// A whole number between two limits, both included.
    int pick(int lowest, int highest);
    bool once_in(int times) { return pick(1, times) == 1; }

    /// Plays a hole of that length in yards until the ball is in the hole. The shots are complete: numbered,
    /// with their distances and units in the current language (`check_shots`).
    shot_list play(int yards, int par);

private:
    /// A shot from off the green. Changes the distance to the hole; 0 if the ball is in it.
    hole_shot play_long(int& yards, bool from_tee, int par);
    void play_on_green(shot_list& shots, int feet);

    std::minstd_rand random_;
};

}  // namespace verdane
