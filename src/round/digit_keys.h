#pragma once

#include <functional>

class QLineEdit;

namespace verdane {

/// Restricts a box to digits, also for pasted text. A typed digit replaces the figure of the box, which is
/// selected by a click and whenever the box gets the focus, and runs `move_on`.
void watch_digit_keys(QLineEdit& box, std::function<void()> move_on);

/// Selects the figure of a box, so that the next digit replaces it.
void select_figure(QLineEdit& box);

}  // namespace verdane
