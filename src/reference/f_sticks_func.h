#pragma once

#include "statistics/selection.h"

namespace verdane {

class f_sticks;

/// The logic of the golf bag, one routine for each event, shared by both twins.
namespace f_sticks_func {

/// The window's width in twips without the filters.
constexpr int bag_width = 7000;

/// Fills the boxes and the filters and opens `rssticks` and `rssticknames`. If no round is stored,
/// reports that, closes them again and unloads the window.
void load(f_sticks& window);

/// Shows the filters in the right half of the window.
void show_filters(f_sticks& window);

/// Computes the averages of clubs 1 to 13 from the selected rounds and shows them in the boxes. The number
/// of shots of each club is pending in the row of averages.
void compute_averages(f_sticks& window);

/// Copies the boxes to the rows and shows the question whether to keep them: Yes commits averages and names,
/// No discards both. The club menu shows the new names in either case until the next start. Fails with
/// `overflow` on an average that a double cannot represent.
void accept(f_sticks& window);

/// Discards pending changes and closes the window.
void cancel(f_sticks& window);

}  // namespace f_sticks_func
}  // namespace verdane
