#pragma once

#include <QString>

namespace verdane::guided_day {

/// Adds the diary of a season to a store: a detailed round every fifth day from April to October on the
/// published courses, with partners and costs.
void create_season(const QString& store_path, int rounds);

}  // namespace verdane::guided_day
