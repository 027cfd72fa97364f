#pragma once

#include <QString>

namespace verdane::guided_day {

/// Lays the diary of a season into a store: rounds told shot by shot on the published courses, a round
/// every fifth day from April to October, in company or alone and with what they cost.
void lay_down_season(const QString& store_path, int rounds);

}  // namespace verdane::guided_day
