#pragma once

#include <array>

#include "base/checked_array.h"
#include "base/counts.h"
#include "scoring/hole_shots.h"
#include "scoring/limits.h"

/// The figures of a hole, counted from its shots.
namespace verdane {

struct hole_summary {
    int16 missed = 0;
    int16 sand = 0;
    int16 recovery = 0;
    int16 fairway = 0;
    /// Shots by penalty: 1 water, 2 lost ball, 3 rules, 4 out of bounds; 0 none.
    checked_array<tally, 5> penalties;
    /// Shots by kind: 1 long, 2 approach, 3 putt; 0 not yet chosen.
    checked_array<tally, 4> kinds;
    /// The lengths in feet of the first six putts. From the second one on the list ends at a length of 0.
    std::array<int16, putt_lengths_kept> putt_lengths{0, 0, 0, 0, 0, 0};
    /// At least one shot has a kind.
    bool isdetailed = false;
};

/// Counts the shots. A shot without a kind is counted only in `kinds`; after the first putt its distance is a
/// length like any other. The position of a putt is cleared. Fails with `subscript` on an unknown kind, and
/// on an unknown penalty of a shot with a kind.
hole_summary summarise(shot_list& rows);

}  // namespace verdane
