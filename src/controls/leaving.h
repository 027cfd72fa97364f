#pragma once

#include <functional>

class QLineEdit;
class QWidget;

namespace verdane {

/// Asks `allows` before the box is left for another control of its window: by Tab, by a click or by a
/// keyboard short cut. When it answers false, the box keeps the focus and whatever would have taken
/// it (a button's click, say) does not happen. Closing the window asks nothing.
void when_left(QLineEdit& box, std::function<bool()> allows);

/// Asks the box of the window that has the focus whether it may be left, as a click on another control
/// would. True when it may, or when the box has no such question.
bool leave_focused_box(const QWidget& window);

/// Runs `routine` when the click is over that takes the focus off the box: the mouse button is up, the
/// control that was clicked has done what it does, and a list that it opened is closed. A window that came
/// up before would take the release, and the click would be lost. A box that goes away first runs nothing.
void when_click_is_over(QLineEdit& box, std::function<void()> routine);

}  // namespace verdane
