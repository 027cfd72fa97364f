#pragma once

#include "selection_arguments.h"

namespace verdane {
class f_date_range;
}

/// What the selection window does; both its twins come here.
namespace verdane::f_date_range_func {

/// Empties the cost report and fills the lists. Without a stored round it says so and unloads the
/// window.
void load(f_date_range& window);

/// A line was chosen in one of the two lists.
void count_rounds_between(f_date_range& window);

/// What the user picked, as the statistic of the window's mode takes it.
selection_arguments selection_of(const f_date_range& window);

/// The run buttons.
void run_club_statistics(f_date_range& window);
void run_round_statistics(f_date_range& window);
void run_cost_statistics(f_date_range& window);
void run_putt_statistics(f_date_range& window);

void cancel(f_date_range& window);
void close_form(f_date_range& window);
void unload();

}  // namespace verdane::f_date_range_func
