#pragma once

#include "scoring/season_rounds.h"

namespace verdane::Statistics {

/// Key, course, rating and slope of the round in the current rows of `rsgames` and `rsvrd_fields`, without
/// its holes. The name of the tee is in the current language.
season_round current_season_round();

}  // namespace verdane::Statistics
