#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

#include "base/checked_array.h"
#include "base/counts.h"

/// What the shots of one hole decide, apart from where their rows live. A hole is its rows in the order
/// of play. Distances are whole numbers, in the unit of their row.
namespace verdane {

/// One shot. What is empty in its row is empty here; an empty kind or club reads as 0.
struct hole_shot {
    std::optional<int16> shot;
    std::optional<int16> before;
    std::optional<int16> after;
    QString unit;
    int16 shot_type_value = 0;
    int16 stickval = 0;
    QString faireway;
    int16 fairval = 0;
    int16 penval = 0;
    bool missed = false;
    bool ts = false;
    bool dz = false;
    bool cal = false;

    int16 remaining() const { return after.value_or(int16{0}); }
    bool is_putt() const;
    /// Club and kind are chosen.
    bool is_told() const;
};

using shot_list = std::vector<hole_shot>;

/// The unit words that are written.
struct unit_words {
    QString feet;
    QString yards;
};

/// Those of the interface's language.
unit_words units_of_interface();

/// What the check of a hole found.
struct shots_check {
    bool ok = true;
    /// The number of the first shot without club or kind; 0 when there is none.
    int incomplete = 0;
};

/// Renumbers the shots, carries each distance on to the next shot, fills empty distances and units, and
/// brings the shot ahead of a putt to feet. The walk ends at the first shot without club or kind.
/// When there is none, a last shot that is no putt is marked as holed from off the green (`cal`) where
/// nothing remains, and goes back to yards where it shows feet.
///
/// The distance carried on is the one that stood in the row before it was turned to feet.
/// Fails with `overflow` when a distance in feet leaves 16 bits.
shots_check check_shots(shot_list& rows, int16 hole_length, const unit_words& words);

/// What the rows decide about a shot to be added behind them.
struct next_shot_plan {
    /// The last shot lacks club, kind or distance; nothing is changed then. A holed shot lacks its
    /// distance, too.
    bool refused = false;
    /// The last shot is a putt, so the next one is.
    bool PUT_MODE = false;
    /// The distance before the new shot, as it stood before any change of unit.
    int16 distance = 0;
};

/// Prepares the rows (one at least) for the next shot: units of the last two, the position of a putt.
/// The shot ahead of the first putt turns to feet once only. Fails with `overflow` like the check.
next_shot_plan plan_next_shot(shot_list& rows, const unit_words& words);

constexpr int lengths_kept = 6;

/// The shots of one penalty or kind.
struct shot_count {
    int16 count = 0;
};

/// A hole as its shots tell it.
struct hole_summary {
    int16 missed = 0;
    int16 sand = 0;
    int16 recovery = 0;
    int16 fairway = 0;
    /// Shots by penalty: 1 water, 2 lost ball, 3 rules, 4 out of bounds; 0 none.
    checked_array<shot_count, 5> penalties;
    /// Shots by kind: 1 long, 2 approach, 3 putt; 0 not yet chosen.
    checked_array<shot_count, 4> kinds;
    /// The lengths in feet of the first six putts; the list ends at a length of 0 after the first.
    std::array<int16, lengths_kept> putt_lengths{0, 0, 0, 0, 0, 0};
    /// At least one shot is classified.
    bool isdetailed = false;
};

/// Folds the rows into the hole's figures. A row without a kind adds to none of the counts but its own;
/// behind the first putt it is a length like any other row. A putt loses its position on the way. Fails
/// with `subscript` on a kind outside its set, and on such a penalty of a shot with a kind.
hole_summary summarise(shot_list& rows);

}  // namespace verdane
