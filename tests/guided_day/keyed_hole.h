#pragma once

#include "tests/guided_day/day.h"

namespace verdane::guided_day {

/// Enters the five shots of the first hole of the open round without the mouse, starting on the quick page,
/// and then the drive of the second hole. Saves pictures of the grid and of open menus.
void enter_hole_by_keys(day& today);

/// The five shots as they are stored afterwards, one line each.
QString keyed_shots(const day& today);

}  // namespace verdane::guided_day
