#pragma once

class QWidget;

namespace verdane {

class f_new_round;

/// Makes every control of the round window and puts it in its place.
void lay_out(f_new_round& window);

/// The pieces of the window, from top to bottom and from left to right. Each makes its own controls.
QWidget* make_hole_bar(f_new_round& window);
QWidget* make_page_bar(f_new_round& window);
QWidget* make_quick_page(f_new_round& window);
QWidget* make_statistics(f_new_round& window);
QWidget* make_detailed_page(f_new_round& window);
QWidget* make_parameters(f_new_round& window);
QWidget* make_totals(f_new_round& window);

/// Shows the frames of a page and hides those of the other.
void show_quick_page(f_new_round& window);
void show_detailed_page(f_new_round& window);

}  // namespace verdane
