#pragma once

namespace verdane {
class f_new_round;
}

/// The way between the quick page and the detailed page.
namespace verdane::f_new_round_func {

/// The numbers of the pages in `TabStrip2`.
constexpr int quick_page = 1;
constexpr int detailed_page = 2;

bool on_detailed_page(const f_new_round& window);

/// `TabStrip2` was clicked, or the window closes from the detailed page. Once `closingoK` is true only
/// the quick page can be reached.
void page_changed(f_new_round& window);

/// `Command4`: opens the shots of the hole, on the detailed page.
void tell_shot_by_shot(f_new_round& window);

/// Takes what is being typed into a cell of the grid. False when the cell keeps it, because the distance is
/// too large; whatever would have come next must not happen then.
bool finish_typing(f_new_round& window);

/// The commands of the main window that must not act while a grid row is open.
void enable_save_and_close(bool enabled);

}  // namespace verdane::f_new_round_func
