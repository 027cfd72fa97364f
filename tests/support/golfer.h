#pragma once

#include <array>
#include <random>
#include <vector>

/// A simulated golfer of medium skill. The same seed gives the same holes on every machine.
namespace verdane::testing {

/// A shot in the codes of the store: kind 1 long, 2 approach, 3 putt; club 1 to 14; fairway 1 in it,
/// 2 left, 3 right, 0 for a putt; penalty 1 water, 2 lost ball, 3 rules, 4 out of bounds, 0 none.
/// Distances are in yards up to the green; `after` of the shot that reaches the green, and everything later,
/// is in feet.
struct played_shot {
    int before = 0;
    int after = 0;
    int kind = 1;
    int club = 1;
    int fairway = 1;
    int penalty = 0;
    bool beyond = false;
    bool missed = false;
    bool sand = false;
    bool no_gain = false;
    bool chipped_in = false;
    bool in_feet = false;
};

using played_shots = std::vector<played_shot>;

class golfer {
public:
    explicit golfer(unsigned seed) : engine_(seed) {}

    /// Every shot of a hole of that length, from the tee into the hole.
    played_shots play(int yards);

    /// A whole number of the range, both ends included.
    int pick(int first, int last);
    /// True with a probability of 1 in `times`.
    bool once_in(int times) { return pick(1, times) == 1; }

private:
    played_shot strike(int yards, bool from_tee);
    void add_mishap(played_shot& shot);
    void reach_green(played_shot& shot, int yards);
    void putt_out(played_shots& shots);

    std::mt19937 engine_;
};

}  // namespace verdane::testing
