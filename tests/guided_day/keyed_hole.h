#pragma once

#include "tests/guided_day/day.h"

namespace verdane::guided_day {

/// Tells the first hole of the round on screen in five shots, without the mouse: from the quick page to the
/// grid, through every shot, and on to the second hole, of which it tells the drive. On the way pictures are
/// kept of the grid and of open menus.
void tell_hole_by_keys(day& today);

/// The five shots as they stand in the store then, a line each.
QString keyed_shots(const day& today);

}  // namespace verdane::guided_day
