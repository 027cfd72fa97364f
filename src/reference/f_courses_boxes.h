#pragma once

#include <QChar>

#include "controls/keys.h"
#include "scoring/limits.h"

namespace verdane {

class f_courses;

/// What the boxes of the course editor accept.
namespace f_courses_func {

constexpr int front_hole_count = hole_count / 2;

/// A key typed into `text(index)`.
key_answer text_key(const f_courses& window, int index, QChar key);

/// Entering a box of the holes: its figure is selected, so that a digit replaces it.
void enter_hole_box(QLineEdit& box);

/// Leaving `txt_verge(index)`, `txt_hnd(index)` or `txt_normal(index)`. False refuses: the box then
/// holds "0", selected, and the focus stays.
bool leave_verge(f_courses& window, int index);
bool leave_hnd(f_courses& window, int index);
bool leave_normal(f_courses& window, int index);

/// Sums the lengths into the three totals. Fails with `overflow` when a sum leaves 16 bits.
void show_totals(f_courses& window);

}  // namespace f_courses_func
}  // namespace verdane
