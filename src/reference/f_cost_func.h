#pragma once

#include <QChar>

#include "controls/keys.h"
#include "store/tables/cost.h"

namespace verdane {

class f_cost;

/// The logic of the cost window, one routine for each event, shared by both twins.
namespace f_cost_func {

constexpr int amount_count = tables::cost::amount_count;
/// The most digits of an amount, which is a whole number.
constexpr int amount_digits = 4;

/// Fills the boxes from the current row of `rscost`. Each change of a box updates the total.
void load(f_cost& window);

/// The text of `cost(index)` changed: an empty box is set to "0", and the total is computed again. Fails
/// with `overflow`, which names the round, when the total exceeds 16 bits.
void box_changed(f_cost& window, int index);

/// A key typed into `cost(index)`: up to four digits pass.
key_answer box_key(const f_cost& window, int index, QChar key);

/// `cost(index)` got the focus: its figure is selected, so that a digit replaces it.
void enter_box(f_cost& window, int index);

/// Writes the boxes to the row, commits it and closes the window.
void accept(f_cost& window);

}  // namespace f_cost_func
}  // namespace verdane
