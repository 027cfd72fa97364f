#pragma once

#include <QString>

#include "club_sums.h"
#include "selection_arguments.h"

/// The shots of a selection, club by club.
namespace verdane::Statistics {

/// The statement of the shots: every shot of the selection but the putts, in the order of rounds and
/// holes.
QString club_shot_select(const selection_arguments& chosen);

struct gathered_shots {
    bag_sums clubs;
    /// Rounds with at least one of these shots.
    int16 rounds = 0;
    bool any_shot = false;
};

/// Reads the statement's rows through `rsStat_rounds`, which is closed before and afterwards and has the
/// whole table as its source again.
gathered_shots gather_club_shots(const selection_arguments& chosen);

}  // namespace verdane::Statistics
