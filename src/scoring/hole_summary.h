#pragma once

#include <array>

#include "base/counts.h"
#include "scoring/hole_arithmetic.h"
#include "scoring/hole_shots.h"
#include "scoring/limits.h"

/// The figures of a hole, counted from its shots.
namespace verdane {

struct hole_summary {
    hole_counts counts;
    /// The lengths in feet of the first six putts. From the second one on the list ends at a length of 0.
    std::array<int16, putt_lengths_kept> putt_lengths{0, 0, 0, 0, 0, 0};
    /// At least one shot has a kind.
    bool isdetailed = false;
};

/// Counts the shots. A shot without a kind adds to no count; after the first putt its distance is a
/// length like a putt's. The position of a putt is cleared. Fails with `subscript` on an unknown kind, and
/// on an unknown penalty of a shot with a kind.
hole_summary summarise(shot_list& rows);

}  // namespace verdane
