#pragma once

#include "tests/guided_day/album.h"

namespace verdane::guided_day {

/// Prints the names of the saved files and of their folder. Returns whether they are exactly the expected
/// pictures (PNG), printed reports (PDF), figures (CSV) and stored rows (TXT), and prints the differences.
/// With `for_good` false the folder is temporary.
bool report_left_files(const album& pictures, bool for_good);

}  // namespace verdane::guided_day
