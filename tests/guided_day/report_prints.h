#pragma once

#include "tests/guided_day/visit.h"

namespace verdane::guided_day {

/// Waits for the preview of a report, saves it as a picture, and by its buttons as PDF and CSV, and closes
/// it. `name` is a part of the file names.
void save_report(visit& now, const QString& name);

}  // namespace verdane::guided_day
