#pragma once

#include <functional>

class QLineEdit;

namespace verdane {

/// Asks `allows` before the box is left for another control of its window: by Tab, by a click or by a
/// keyboard short cut. When it answers false, the box keeps the focus and whatever would have taken
/// it (a button's click, say) does not happen. Closing the window asks nothing.
void when_left(QLineEdit& box, std::function<bool()> allows);

}  // namespace verdane
