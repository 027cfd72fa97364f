#pragma once

#include "tests/guided_day/album.h"

namespace verdane::guided_day {

/// Says which files the day has left and where, or that they go with the run. True when they are the
/// pictures (PNG), printed reports (PDF) and figures (CSV) that it is to leave, all of them and nothing else;
/// otherwise the difference is told.
bool tell_what_was_left(const album& pictures, bool for_good);

}  // namespace verdane::guided_day
