#pragma once

#include <functional>

class QLineEdit;
class QWidget;

/// What the round window does with keys and the mouse wheel before its controls get them.
namespace verdane {

class Form;
class hole_bar;
class page_bar;

/// Makes PageDown and PageUp click the tab of the next and the previous hole, and Ctrl+1 and Ctrl+2 the tab
/// of a page, whichever control of the window has the focus. Before the first hole and after the last one the
/// bell rings. An open menu or list keeps its keys. A key that is held down acts once. The keys are in the
/// list of Ctrl+F1 and in the tool tips of the tabs.
void watch_tab_keys(Form& window, hole_bar& holes, page_bar& pages);

/// Restricts a box to digits, also for pasted text. A typed digit replaces the figure of the box, which is
/// selected by a click and whenever the box gets the focus, and runs `move_on`.
void watch_digit_keys(QLineEdit& box, std::function<void()> move_on);

/// Selects the figure of a box, so that the next digit replaces it.
void select_figure(QLineEdit& box);

/// Ignores the mouse wheel over a control: turned by accident, it would select another course, hole or
/// weather unnoticed.
void ignore_wheel(QWidget& control);

}  // namespace verdane
