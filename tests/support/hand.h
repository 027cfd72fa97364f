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

/// The expected content of a message box.
struct expected_box {
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
};

/// Plays the user from a second thread: it posts real keys and clicks to the window thread, finds controls by
/// their `objectName` and waits for conditions. A test is a sequential script, no matter how many modal
/// windows are open above each other.
///
/// A name is looked up in the windows that take input: the topmost modal one, or all visible ones if none is
/// modal. A condition that does not hold within the time limit is a failure: it prints the open windows and
/// ends the process, because the rest of the script would act on the wrong window.
class hand {
public:
    explicit hand(std::chrono::milliseconds time_limit = std::chrono::seconds(20));
    virtual ~hand() = default;

    // Waiting and reading.
    void wait_for_window(const QString& name);
    void wait_until_closed(const QString& window);
    bool is_open(const QString& window);
    void wait_until(const QString& what, const std::function<bool()>& holds);
    /// The text of a box, label, button, combo or frame, the selected entry of a list, or the title of a
    /// window.
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
    /// Runs a routine in the window thread and waits until it returns.
    void look(const std::function<void()>& routine);

    // Input. The virtual functions use the mouse; `keyboard_hand` has the same by keys.
    virtual void click(const QString& control);
    /// Posts both clicks before the handler of the first one returns.
    void double_click(const QString& button);
    virtual void double_click_row(const QString& list, int row);
    /// Sends press and release through the window system as two events: a window that opens at the press gets
    /// the release.
    void press_and_release(const QString& control);
    void press_and_release_tab(const QString& tabs, int tab);
    void press_and_release_row(const QString& list, int row);
    virtual void click_row(const QString& list, int row);
    virtual void click_tab(const QString& tabs, int tab);
    /// Chooses an entry of a combo with the keyboard.
    void choose(const QString& combo, int index);
    /// Types into the control with the focus, one key for each character.
    void type(const QString& characters);
    /// Clicks into a box and replaces its text.
    void fill(const QString& box, const QString& characters);
    /// Replaces the text of a box from the clipboard.
    void paste(const QString& box, const QString& text);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Opens the menu with that entry and clicks the entry (by its name).
    virtual void menu(const QString& entry);
    /// The title bar's close box.
    virtual void close_window(const QString& window);

    // Grids. Rows and columns count from 0, hidden columns included.
    virtual void click_cell(const QString& grid, int row, int column);
    /// Clicks the button of a cell and waits for its menu.
    virtual void open_menu(const QString& grid, int row, int column);
    /// The captions of the open menu.
    QStringList menu_entries();
    /// Clicks an entry of the open menu, by its name.
    virtual void choose_menu_entry(const QString& entry);
    /// Waits for a menu that was opened by the keyboard.
    void wait_for_menu(const QString& menu);
    /// Presses a key, or types characters, while a menu is open.
    void menu_key(int key);
    void menu_type(const QString& characters);
    QString cell(const QString& grid, int row, int column);
    /// The visible cells of a row, with " | " between them.
    QString grid_row(const QString& grid, int row);
    int grid_rows(const QString& grid);
    /// "row,column" of the cursor; "none" without a cursor.
    QString cursor(const QString& grid);

    // Message boxes.
    /// Waits for the box, compares text, icon, title and buttons, and clicks a button.
    void answer(const expected_box& box, QMessageBox::StandardButton answer = QMessageBox::Ok);

    // Checks of the script. A check that fails ends the test with this message.
    void check(bool holds, const QString& message);
    void same(const QString& seen, const QString& expected, const QString& what);
    void same(int seen, int expected, const QString& what);

    /// Prints the message and the open windows, and ends the process with status 1.
    [[noreturn]] void fail(const QString& message);

protected:
    /// Sets the focus to a control before keys are typed into it.
    virtual void focus_on(const QString& control);
    /// Clicks a button of the message box on top.
    virtual void click_in_box(QMessageBox::StandardButton button);

    void wait_for_keyboard();
    void post(const std::function<void()>& action);
    void on_control(const QString& name, const std::function<void(QWidget&)>& action);

private:
    void press_and_release(QWidget& control, const QPoint& place);

    std::chrono::milliseconds time_limit_;
};

/// Runs `script` on a second thread while `program` (which opens windows and returns after they are closed)
/// runs on this one. Returns when both have returned.
void play(const std::function<void()>& program, const std::function<void(hand&)>& script);
/// The same with a given user.
void play(const std::function<void()>& program, const std::function<void(hand&)>& script, hand& user);

}  // namespace verdane::testing
