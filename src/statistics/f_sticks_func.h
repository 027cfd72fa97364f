#pragma once

#include "selection_arguments.h"

namespace verdane {

class f_sticks;

/// What the golf bag does, one routine for each event; both its twins come here.
namespace f_sticks_func {

/// The window's width in twips, and with its filters.
constexpr int bag_width = 7000;
constexpr int width_with_filters = 10605;

/// Fills the boxes and the filters and opens `rssticks` and `rssticknames`. Without a stored round it
/// says so, closes them again and unloads the window.
void load(f_sticks& window);

/// Opens the window's right half.
void show_filters(f_sticks& window);

/// What the filters mean. The texts of those that are off are this window's own.
selection_arguments selection_of(const f_sticks& window);

/// Works the averages of clubs 1 to 13 out from the selected rounds, into the boxes. The number of shots
/// behind each waits in the row of averages.
void compute_averages(f_sticks& window);

/// Takes the boxes over and asks whether to keep them: Yes commits averages and names, No drops both.
/// The menu of clubs has the new names either way until the next start. Fails with `overflow` on an
/// average that no decimal number can hold.
void accept(f_sticks& window);

/// Drops what waits and closes the window.
void cancel(f_sticks& window);

}  // namespace f_sticks_func
}  // namespace verdane
