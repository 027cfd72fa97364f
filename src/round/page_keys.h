#pragma once

namespace verdane {

class f_new_round;

/// Makes PageDown and PageUp choose the next and the previous hole, and Ctrl+1 and Ctrl+2 the page, whichever
/// control of the window has the focus. Each is a click on the tab. Ahead of the first hole and after the
/// last one the bell rings. An open menu or list keeps its keys. A key that is held down acts once.
/// The keys are in the list of F1 and in the tool tips of the tabs.
void watch_page_keys(f_new_round& window);

}  // namespace verdane
