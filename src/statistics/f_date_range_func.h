#pragma once

#include "statistics/selection.h"

namespace verdane {
class f_date_range;
}

/// The logic of the selection window, shared by both twins.
namespace verdane::f_date_range_func {

/// Empties the cost report and fills the lists. If no round is stored, reports that and unloads the
/// window.
void load(f_date_range& window);

/// The user's selection in the form that the statistic of the window's mode expects.
selection_arguments selection_of(const f_date_range& window);

/// The run buttons.
void run_club_statistics(f_date_range& window);
void run_round_statistics(f_date_range& window);
void run_cost_statistics(f_date_range& window);
void run_putt_statistics(f_date_range& window);

void cancel(f_date_range& window);
void unload_and_unlock(f_date_range& window);
void unload();

}  // namespace verdane::f_date_range_func
