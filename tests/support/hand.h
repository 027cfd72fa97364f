#pragma once

#include <QImage>
#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

class QPoint;
class QWidget;

namespace verdane::testing {

/// A message box as it must look.
struct expected_box {
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
};

/// A user's hand: a second thread that posts real keys and clicks to the window thread, finds
/// controls by their `objectName` and waits for what it expects. A test reads as a straight script,
/// however many modal windows stand above each other.
///
/// Every name is looked up in the window that takes input: the modal one on top, else any that is
/// shown. What does not come within the patience is a failure, which names what was open and ends the
/// process: a test that lost its way must not go on.
class hand {
public:
    explicit hand(std::chrono::milliseconds patience = std::chrono::seconds(20));

    // Waiting and looking.
    void wait_for_window(const QString& name);
    void wait_until_gone(const QString& window);
    bool is_open(const QString& window);
    void wait_until(const QString& what, const std::function<bool()>& holds);
    /// The text of a box, label, button, list entry under the selection, combo or title bar.
    QString text(const QString& control);
    QString title(const QString& window);
    QStringList entries(const QString& list);
    int selected(const QString& list);
    bool visible(const QString& control);
    bool enabled(const QString& control);
    bool exists(const QString& control);
    /// objectName of the control that has the focus.
    QString focus();
    QString selected_text(const QString& box);
    int bells();
    QImage picture(const QString& window);
    /// Runs something in the window thread and waits for it.
    void look(const std::function<void()>& routine);

    // Doing.
    void click(const QString& control);
    /// Both clicks are on their way before what the first one starts is over.
    void double_click(const QString& button);
    void double_click_row(const QString& list, int row);
    /// Press and release come through the window system, one after the other, as from a mouse: what opens at
    /// the press takes the release.
    void press_and_release(const QString& control);
    void press_and_release_tab(const QString& tabs, int tab);
    void press_and_release_row(const QString& list, int row);
    void click_row(const QString& list, int row);
    void click_tab(const QString& tabs, int tab);
    /// Chooses an entry of a combo with the keyboard.
    void choose(const QString& combo, int index);
    /// Types into whatever has the focus, a character a key.
    void type(const QString& characters);
    /// Clicks into a box, selects what it holds and types over it.
    void fill(const QString& box, const QString& characters);
    /// Puts a text into the box through the clipboard.
    void paste(const QString& box, const QString& text);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Opens the menu that holds the entry and clicks the entry (by its name).
    void menu(const QString& entry);
    /// The title bar's close box.
    void close_window(const QString& window);

    // Grids. Rows and columns count from 0, hidden columns included.
    void click_cell(const QString& grid, int row, int column);
    /// Clicks the button of a cell and waits for its menu.
    void open_menu(const QString& grid, int row, int column);
    /// The captions of the menu that is up.
    QStringList menu_entries();
    /// Clicks an entry of the menu that is up, by its name, and waits until the menu has gone.
    void choose_menu_entry(const QString& entry);
    /// Waits for a menu that was opened by the keyboard.
    void wait_for_menu(const QString& menu);
    /// A key, and characters, pressed while a menu is up.
    void menu_key(int key);
    void menu_type(const QString& characters);
    QString cell(const QString& grid, int row, int column);
    /// The visible cells of a row, with " | " between them.
    QString grid_row(const QString& grid, int row);
    int grid_rows(const QString& grid);
    /// "row,column" of the cursor; "none" where there is none.
    QString cursor(const QString& grid);

    // Message boxes.
    /// Waits for the box, compares text, icon, title and buttons, and presses the answer.
    void answer(const expected_box& box, QMessageBox::StandardButton answer = QMessageBox::Ok);

    // Checks of the script itself; a false one ends the test with these words.
    void check(bool holds, const QString& words);
    void same(const QString& seen, const QString& expected, const QString& what);
    void same(int seen, int expected, const QString& what);

    /// Says what is on the screen and ends the process with status 1.
    [[noreturn]] void fail(const QString& words);

private:
    void wait_for_keyboard();
    void post(const std::function<void()>& action);
    void press_and_release(QWidget& control, const QPoint& place);
    void on_control(const QString& name, const std::function<void(QWidget&)>& action);

    std::chrono::milliseconds patience_;
};

/// Runs `script` on a thread of its own while `program` (which opens windows and returns when they
/// are gone) runs on this one, and returns when both are done.
void play(const std::function<void()>& program, const std::function<void(hand&)>& script);

}  // namespace verdane::testing
