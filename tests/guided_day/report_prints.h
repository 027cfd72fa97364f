#pragma once

#include "tests/guided_day/visit.h"

namespace verdane::guided_day {

/// The report that is about to open: keeps its preview as a picture, what it prints as PDF and its figures
/// as CSV, all through the buttons of the preview, and closes it. `name` goes into the files' names.
void keep_report(visit& now, const QString& name);

}  // namespace verdane::guided_day
