#pragma once

#include "store/store_location.h"

namespace verdane::guided_day {

/// Adds the diary of a season to a store: a detailed round every fifth day from April to October on the
/// published courses, with partners and costs.
void create_season(const store_location& place, int rounds);

}  // namespace verdane::guided_day
