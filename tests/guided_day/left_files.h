#pragma once

#include "tests/guided_day/album.h"

namespace verdane::guided_day {

/// Prints the names of the saved files and of their folder. Returns whether they are exactly the expected
/// pictures (PNG), printed reports (PDF) and figures (CSV), and prints the differences. With `for_good` false
/// the folder is temporary.
bool report_left_files(const album& pictures, bool for_good);

}  // namespace verdane::guided_day
