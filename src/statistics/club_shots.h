#pragma once

#include <QString>

#include "scoring/club_sums.h"
#include "statistics/selection.h"

/// Reads the shots of a selection and adds them up club by club.
namespace verdane::Statistics {

/// The statement that selects every shot of the selection except the putts, ordered by round and
/// hole.
QString club_shot_select(const selection_arguments& chosen);

struct gathered_shots {
    bag_sums clubs;
    /// Rounds with at least one of these shots.
    int16 rounds = 0;
    bool any_shot = false;
};

/// Reads the rows of `club_shot_select` through `rsStat_rounds`, which must be closed. It is closed again
/// on return, with the whole table as its source.
gathered_shots gather_club_shots(const selection_arguments& chosen);

}  // namespace verdane::Statistics
