#pragma once

#include <QString>

#include <optional>
#include <vector>

#include "base/counts.h"

/// The rules of shot-by-shot entry, on the shots of one hole in the order of play. Distances are whole
/// numbers in the unit of their row.
namespace verdane {

/// One shot. A value that its row does not have is absent here; an absent kind or club is 0. Members are
/// named after their columns.
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

    /// The distance left after the shot; 0 if it is absent.
    int16 remaining() const { return after.value_or(int16{0}); }
    bool is_putt() const;
    /// True if club and kind are chosen.
    bool is_complete() const;
};

using shot_list = std::vector<hole_shot>;

/// The unit words that are written.
struct unit_words {
    QString feet;
    QString yards;
};

/// The words of one language.
unit_words units_in(bool french);

/// The result of the check of a hole.
struct shots_check {
    bool ok = true;
    /// The number of the first shot without club or kind; 0 if there is none.
    int incomplete = 0;
};

/// Renumbers the shots, copies the distance left of each shot to the next one, fills absent distances and
/// units, and converts the shot before a putt to feet. The check ends at the first shot without club or kind.
/// If there is none and the last shot is no putt, that shot is converted from feet to yards, and marked as
/// holed from off the green (`cal`) if no distance is left.
///
/// The copied distance is the one before the conversion to feet.
/// Fails with `overflow` if a distance in feet exceeds 16 bits.
shots_check check_shots(shot_list& rows, int16 hole_length, const unit_words& words);

/// What the next shot of a hole starts with.
struct next_shot_plan {
    /// The last shot lacks club, kind or distance, or was holed. Nothing is changed then.
    bool refused = false;
    /// The last shot is a putt, so the next one is, too.
    bool PUT_MODE = false;
    /// The distance before the new shot: what the last shot left, before any conversion.
    int16 distance = 0;
};

/// Prepares the rows (at least one) for the next shot: the units of the last two, and the position of a putt.
/// The shot before the first putt is converted to feet once. Fails with `overflow` like the check.
next_shot_plan plan_next_shot(shot_list& rows, const unit_words& words);

/// Removes the position of a putt, its code and its text.
void clear_position(hole_shot& row);

}  // namespace verdane
