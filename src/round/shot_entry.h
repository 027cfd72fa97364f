#pragma once

#include "base/counts.h"

namespace verdane {
class f_new_round;
}

/// The shots of a hole, told one by one: what the detailed page does with the rows of `rsStat_rounds`.
/// What the rows decide stands in `hole_shots.h`.
namespace verdane::f_new_round_func {

/// Loads the shots of the hole on screen into the grid; a hole without shots gets a blank one. Refuses
/// without a date (false).
bool open_hole_shots(f_new_round& window);

/// True when every shot of the loaded hole has its club and kind, or no hole is loaded. Renumbers the
/// shots and settles distances and units; the cursor ends on the last shot, or on the incomplete one,
/// which the user is told about.
bool check_shots(f_new_round& window);

/// Removes the hole's first shot when the cursor stands on it and it lacks club or kind. Otherwise the
/// shots are checked, and `ok` takes the answer; `ok` is left alone when the shot was removed.
/// `removed` (1 or 0) is written only when it comes in as something else than 0.
void drop_blank_shot(f_new_round& window, int16& removed, bool& ok);

/// The loaded hole has nothing but the blank shot with which a hole starts.
bool hole_is_untold();

/// Takes that blank shot away. The close box leaves without complete shots, and a hole that was only looked
/// at must not count as a detailed one.
void drop_untold_shot();

/// Adds the next shot behind the last one. Refuses while the last one lacks club, kind or distance.
void next_shot(f_new_round& window);

/// Removes the shot under the cursor.
void remove_shot(f_new_round& window);

/// Sums the hole up, whose blank first shot goes; a hole without shots gets a blank one.
void finish_hole(f_new_round& window);

/// Folds the shots of the hole on screen into the boxes of the quick page, notes the lengths of its
/// putts in the current row of `rsgames2` (not committed) and settles `isdetailed`.
void summarise_hole(f_new_round& window);

}  // namespace verdane::f_new_round_func
