#pragma once

#include <functional>

class QLineEdit;

namespace verdane {

/// Calls `handler` each time the box gains the focus, before `setFocus` returns, so that the next key
/// replaces the text that the handler selects.
///
/// A click moves the cursor after the box has gained the focus. Therefore `handler` is called again after the
/// press and after the release of that click, unless the mouse was dragged in between to select another text.
/// It is not called for a later click into the box, or when the context menu of the box closes.
void when_entered(QLineEdit& box, std::function<void()> handler);

}  // namespace verdane
