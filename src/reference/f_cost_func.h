#pragma once

#include <QChar>

#include "controls/keys.h"

namespace verdane {

class f_cost;

/// What the window of a round's costs does, one routine for each event.
namespace f_cost_func {

constexpr int amount_count = 12;
/// An amount is a whole number of at most so many digits.
constexpr int amount_digits = 4;

/// Fills the boxes from the current row of `rscost`; the total follows by itself.
void load(f_cost& window);

/// The text of `cost(index)` changed: an empty box takes "0", and the total is made again. Fails with
/// `overflow` when the total leaves 16 bits.
void box_changed(f_cost& window, int index);

/// A key typed into `cost(index)`: digits only, and no fifth one.
key_answer box_key(const f_cost& window, int index, QChar key);

/// Entering `cost(index)`: its figure is selected, so that a digit replaces it.
void enter_box(f_cost& window, int index);

/// Writes the boxes into the row, commits it and closes the window.
void accept(f_cost& window);

}  // namespace f_cost_func
}  // namespace verdane
