#pragma once

#include <functional>

class QLineEdit;

namespace verdane {

/// Runs `handler` each time the box gains the focus, before `setFocus` returns, so that the next key
/// replaces what the handler selects.
///
/// A click sets the cursor after the box has gained the focus, so `handler` runs again after the press and
/// after the release of that click, unless the mouse was dragged in between to select something else. A
/// later click into the box and the closing of its own menu run nothing.
void when_entered(QLineEdit& box, std::function<void()> handler);

}  // namespace verdane
