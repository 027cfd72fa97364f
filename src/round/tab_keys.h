#pragma once

namespace verdane {

class Form;
class hole_bar;
class page_bar;

/// Makes PageDown and PageUp click the tab of the next and the previous hole, and Ctrl+1 and Ctrl+2 the tab
/// of a page, whichever control of the window has the focus. Before the first hole and after the last one the
/// bell rings. An open menu or list keeps its keys. A key that is held down acts once. The keys are in the
/// list of Ctrl+F1 and in the tool tips of the tabs.
void watch_tab_keys(Form& window, hole_bar& holes, page_bar& pages);

}  // namespace verdane
