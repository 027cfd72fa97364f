#pragma once

#include <memory>

#include "tests/support/hand.h"

class QObject;

namespace verdane::testing {

/// Plays a user without a mouse. Tab moves the focus to a control; arrows, Space, Enter, Escape, F4 and
/// mnemonics do the rest. A control that 200 Tabs do not reach is a failure of the script. While this object
/// exists, so is every press of a mouse button and every turn of the wheel.
class keyboard_hand : public hand {
public:
    keyboard_hand();
    ~keyboard_hand() override;
    keyboard_hand(const keyboard_hand&) = delete;
    keyboard_hand& operator=(const keyboard_hand&) = delete;

    /// Moves the focus to a control, and presses Space if it is a button.
    void click(const QString& control) override;
    /// Moves to the row; Space selects it in a list with several selected rows.
    void click_row(const QString& list, int row) override;
    /// The row, then Enter.
    void double_click_row(const QString& list, int row) override;
    /// Home, End or an arrow for another tab, Space for the selected one. Another tab must be the next one,
    /// the first or the last: the tabs on the way would be clicked, too.
    void click_tab(const QString& tabs, int tab) override;
    /// The mnemonic of the menu, then arrows and Enter.
    void menu(const QString& entry) override;
    /// Escape.
    void close_window(const QString& window) override;
    void click_cell(const QString& grid, int row, int column) override;
    /// F4 in the cell.
    void open_menu(const QString& grid, int row, int column) override;
    void choose_menu_entry(const QString& entry) override;

protected:
    void focus_on(const QString& control) override;
    void click_in_box(QMessageBox::StandardButton button) override;

private:
    void press_until(const QString& what, int key, const std::function<bool()>& holds);
    void open_top_menu(const QString& entry);

    std::unique_ptr<QObject> mouse_watch_;
};

}  // namespace verdane::testing
