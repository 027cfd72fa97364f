#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "controls/TabStrip.h"

class QPushButton;

namespace verdane {

class Form;

/// The pages of the round window, numbered as their tabs are.
enum class round_page { quick = 1, detailed = 2 };

/// The tabs of the two pages, and the buttons next to them.
class page_bar : public QWidget {
public:
    explicit page_bar(Form& window);

    /// Clicks on "Putts" and on the button that opens the shots of the hole.
    std::function<void()> putts_clicked;
    std::function<void()> shots_clicked;

    TabStrip& page_tabs() const { return *page_tabs_; }
    bool is_selected(round_page page) const;
    void select(round_page page);

    /// The controls in the order of the Tab key.
    std::vector<QWidget*> tab_order() const;

private:
    TabStrip* page_tabs_;
    QPushButton* shots_button_;
    QPushButton* putts_button_;
};

/// Makes PageDown and PageUp click the tab of the next and the previous hole, and Ctrl+1 and Ctrl+2 the tab
/// of a page, whichever control of the window has the focus. Before the first hole and after the last one the
/// bell rings. An open menu or list keeps its keys. A key that is held down acts once. The keys are in the
/// list of F1 and in the tool tips of the tabs.
void watch_tab_keys(Form& window, TabStrip& hole_tabs, TabStrip& page_tabs);

}  // namespace verdane
