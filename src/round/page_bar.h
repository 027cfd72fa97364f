#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace verdane {

class Form;
class hole_bar;
class TabStrip;

/// The pages of the round window, numbered as their tabs are.
enum class round_page { quick = 1, detailed = 2 };

/// The tabs of the two pages, and the buttons next to them.
class page_bar : public QWidget {
    Q_OBJECT

public:
    explicit page_bar(Form& window);

    /// `check` runs before a click on a tab is accepted; false keeps the selected page.
    void set_before_tab_click(std::function<bool()> check);

    bool is_selected(round_page page) const;
    void select(round_page page);
    /// Acts as a click on the tab of a page.
    void click(round_page page);
    void set_tab_tip(round_page page, const QString& text);

    /// Shows a line next to the tabs, with an explanation as its tool tip; an empty line hides it.
    void show_note(const QString& line, const QString& explanation);

    /// The controls in the order of the Tab key.
    std::vector<QWidget*> tab_order() const;

Q_SIGNALS:
    /// A tab was clicked, also the selected one.
    void tab_clicked();
    /// Clicks on "Putts" and on the button that opens the shots of the hole.
    void putts_clicked();
    void shots_clicked();

private:
    TabStrip* page_tabs_;
    QPushButton* shots_button_;
    QPushButton* putts_button_;
    /// Null until there is something to show.
    QLabel* note_ = nullptr;
};

/// Makes PageDown and PageUp click the tab of the next and the previous hole, and Ctrl+1 and Ctrl+2 the tab
/// of a page, whichever control of the window has the focus. Before the first hole and after the last one the
/// bell rings. An open menu or list handles these keys itself. A key that is held down acts once. The list of
/// Ctrl+F1 and the tool tips of the tabs show the keys.
void watch_tab_keys(Form& window, hole_bar& holes, page_bar& pages);

}  // namespace verdane
