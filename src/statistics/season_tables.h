#pragma once

#include "reports/query/report_tables.h"
#include "scoring/season_rounds.h"

namespace verdane::Statistics {

/// The rows of the tables that the round report gets in memory for its pages about the handicap and the
/// season. `rounds` may be in any order. Without rounds there are no rows.
passed_rows season_tables(const season_rounds& rounds);

}  // namespace verdane::Statistics
