#pragma once

#include <functional>

class QLineEdit;
class QWidget;

namespace verdane {

/// Calls `handler` each time the box gains the focus, before `setFocus` returns, so that the next key
/// replaces the text that the handler selects.
///
/// A click moves the cursor after the box has gained the focus. Therefore `handler` is called again after the
/// press and after the release of that click, unless the mouse was dragged in between to select another text.
/// It is not called for a later click into the box, or when the context menu of the box closes.
void when_entered(QLineEdit& box, std::function<void()> handler);

/// Calls `allows` before the focus moves from the box to another control of its window: by Tab, by a click or
/// by a keyboard shortcut. If it returns false, the box keeps the focus, and the key or click has no effect.
/// Closing the window does not call it.
void when_left(QLineEdit& box, std::function<bool()> allows);

/// Calls `allows` of the box with the focus, as a click on another control does. True if the box may be left,
/// or if the control with the focus has no such check.
bool leave_focused_box(const QWidget& window);

/// Calls `routine` after the end of the click that moves the focus from the box: the mouse button is
/// released, the clicked control has handled it, and a list that it opened is closed. A window that is shown
/// before that would get the release, and the click would have no effect. If the box is deleted before,
/// `routine` is not called.
void when_click_is_over(QLineEdit& box, std::function<void()> routine);

}  // namespace verdane
