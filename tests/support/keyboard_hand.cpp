#include "tests/support/keyboard_hand.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>
#include <QTableView>

#include "tests/support/hand_thread.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int most_keys = 200;

/// Ends the script at the first event of a mouse.
class mouse_watch : public QObject {
public:
    explicit mouse_watch(hand& user) : user_(user) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            user_.fail(u"the mouse was used on "_s + target->objectName());
        default:
            return false;
        }
    }

private:
    hand& user_;
};

bool has_focus(const QString& control)
{
    const QWidget* wanted = find_control(control);
    const QWidget* focused = QApplication::focusWidget();
    // The focus of a spin box is in its line edit.
    return wanted && focused && (focused == wanted || wanted->isAncestorOf(focused));
}

QModelIndex cursor_of(const QString& grid)
{
    return dynamic_cast<QTableView&>(*find_control(grid)).currentIndex();
}

/// The entry of the menu bar that opens the menu with an entry, or that is the entry.
QAction& top_of(const QString& entry)
{
    QAction& action = *find_action(entry);
    const QMenu* menu = menu_of(action);
    return menu ? *menu->menuAction() : action;
}

}  // namespace

keyboard_hand::keyboard_hand() : mouse_watch_(std::make_unique<mouse_watch>(*this)) {}

keyboard_hand::~keyboard_hand() = default;

void keyboard_hand::press_until(const QString& what, int pressed, const std::function<bool()>& holds)
{
    for (int keys = 0; keys < most_keys; ++keys) {
        if (result_of<bool>(holds))
            return;
        if (result_of<bool>([] { return menu_on_top() != nullptr; }))
            menu_key(pressed);
        else
            key(pressed);
    }
    fail(u"%1 was not reached by pressing %2 %3 times"_s.arg(what, QKeySequence(pressed).toString())
             .arg(most_keys));
}

void keyboard_hand::focus_on(const QString& control)
{
    on_control(control, [](QWidget&) {});
    press_until(control, Qt::Key_Tab, [&] { return has_focus(control); });
}

void keyboard_hand::click(const QString& control)
{
    focus_on(control);
    const auto is_button = [&] { return qobject_cast<QAbstractButton*>(find_control(control)) != nullptr; };
    if (result_of<bool>(is_button))
        key(Qt::Key_Space);
}

void keyboard_hand::click_row(const QString& list, int row)
{
    focus_on(list);
    const auto& rows = dynamic_cast<QListWidget&>(*find_control(list));
    const bool last = row > 0 && row == static_cast<int>(entries(list).size()) - 1;
    key(last ? Qt::Key_End : Qt::Key_Home);
    press_until(u"row %1 of "_s.arg(row) + list, Qt::Key_Down, [&] { return rows.currentRow() == row; });
    if (rows.selectionMode() == QAbstractItemView::MultiSelection)
        key(Qt::Key_Space);
}

void keyboard_hand::double_click_row(const QString& list, int row)
{
    click_row(list, row);
    key(Qt::Key_Return);
}

void keyboard_hand::click_tab(const QString& tabs, int tab)
{
    focus_on(tabs);
    const int now = selected(tabs) + 1;
    if (tab == now)
        key(Qt::Key_Space);
    else if (tab == now + 1 || tab == now - 1)
        key(tab > now ? Qt::Key_Right : Qt::Key_Left);
    else if (tab == 1 || tab == static_cast<int>(entries(tabs).size()))
        key(tab == 1 ? Qt::Key_Home : Qt::Key_End);
    else
        fail(u"tab %1 of %2 is not next to tab %3"_s.arg(tab).arg(tabs).arg(now));
}

void keyboard_hand::open_top_menu(const QString& entry)
{
    QKeySequence mnemonic;
    look([&] { mnemonic = QKeySequence::mnemonic(top_of(entry).text()); });
    check(!mnemonic.isEmpty(), u"the menu of "_s + entry + u" has no mnemonic"_s);
    key(mnemonic[0].key(), Qt::AltModifier);
}

void keyboard_hand::menu(const QString& entry)
{
    wait_until(u"menu entry " + entry, [&] { return find_action(entry) != nullptr; });
    const bool has_menu = result_of<bool>([&] { return menu_of(*find_action(entry)) != nullptr; });
    QAction& top = top_of(entry);
    open_top_menu(entry);
    if (!has_menu)
        return;
    // In the English menu bar two captions have the same mnemonic.
    wait_until(u"a menu"_s, [] { return menu_on_top() != nullptr; });
    press_until(u"the menu of "_s + entry, Qt::Key_Right,
                [&] { return menu_on_top() && menu_on_top()->menuAction() == &top; });
    choose_menu_entry(entry);
}

void keyboard_hand::choose_menu_entry(const QString& entry)
{
    wait_until(u"a menu"_s, [] { return menu_on_top() != nullptr; });
    press_until(u"menu entry " + entry, Qt::Key_Down, [&] {
        const QAction* active = menu_on_top() ? menu_on_top()->activeAction() : nullptr;
        return active && active->objectName() == entry;
    });
    menu_key(Qt::Key_Return);
}

void keyboard_hand::close_window(const QString& window)
{
    wait_for_window(window);
    key(Qt::Key_Escape);
}

void keyboard_hand::click_cell(const QString& grid, int row, int column)
{
    focus_on(grid);
    const QString cell = u"cell %1,%2 of "_s.arg(row).arg(column) + grid;
    const QModelIndex now = result_of<QModelIndex>([&] { return cursor_of(grid); });
    press_until(cell, now.row() < row ? Qt::Key_Down : Qt::Key_Up,
                [&] { return cursor_of(grid).row() == row; });
    press_until(cell, now.column() < column ? Qt::Key_Right : Qt::Key_Left,
                [&] { return cursor_of(grid).column() == column; });
}

void keyboard_hand::open_menu(const QString& grid, int row, int column)
{
    click_cell(grid, row, column);
    key(Qt::Key_F4);
    wait_until(u"the menu of a cell"_s, [] { return menu_on_top() != nullptr; });
}

void keyboard_hand::click_in_box(QMessageBox::StandardButton button)
{
    const auto on_button = [button] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box && QApplication::focusWidget() == box->button(button);
    };
    press_until(u"a button of the message box"_s, Qt::Key_Tab, on_button);
    key(Qt::Key_Space);
}

}  // namespace verdane::testing
