#include "hand.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "boxes.h"
#include "hand_widgets.h"

namespace verdane::testing {

namespace {

/// Runs a routine in the window thread, inside whatever modal loop is on top, and waits for it.
void in_window_thread(const std::function<void()>& routine)
{
    QMetaObject::invokeMethod(qApp, routine, Qt::BlockingQueuedConnection);
}

template <typename Result>
Result asked(const std::function<Result()>& question)
{
    Result answer{};
    in_window_thread([&] { answer = question(); });
    return answer;
}

QPoint middle_of_row(const QListWidget& list, int row)
{
    return list.visualItemRect(list.item(row)).center();
}

/// The menu that holds the entry; null for an entry of the menu bar itself.
QMenu* menu_of(const QAction& entry)
{
    QMenu* menu = nullptr;
    for (QObject* owner : entry.associatedObjects()) {
        if (qobject_cast<QMenuBar*>(owner))
            return nullptr;
        if (auto* found = qobject_cast<QMenu*>(owner))
            menu = found;
    }
    return menu;
}

void click_action(QWidget& owner, const QRect& where)
{
    QTest::mouseClick(&owner, Qt::LeftButton, Qt::NoModifier, where.center());
}

QString described(const expected_box& box)
{
    return QStringLiteral("title \"%1\", icon %2, buttons %3, text \"%4\"")
        .arg(box.title)
        .arg(static_cast<int>(box.icon))
        .arg(static_cast<int>(box.buttons), 0, 16)
        .arg(box.text);
}

expected_box shown_box(const QMessageBox& box)
{
    return {box.text(), box.icon(), box.windowTitle(), box.standardButtons()};
}

QMessageBox* box_on_top()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

}  // namespace

hand::hand(std::chrono::milliseconds patience) : patience_(patience) {}

void hand::look(const std::function<void()>& routine)
{
    in_window_thread(routine);
}

void hand::post(const std::function<void()>& action)
{
    QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
    // Answered once the action has ended, or has opened a window and waits in it.
    in_window_thread([] {});
    in_window_thread([] {});
}

void hand::wait_until(const QString& what, const std::function<bool()>& holds)
{
    using clock = std::chrono::steady_clock;
    auto end = clock::now() + patience_;
    bool failed = false;
    const auto holds_or_failed = [&] {
        const bool there = holds();
        failed = !there && visible_window(QStringLiteral("failure_box"));
        return there;
    };
    while (!asked<bool>(holds_or_failed)) {
        // A program that has failed waits for an answer. What is waited for will not come then, unless it
        // is that box itself, which takes a moment to get the keyboard.
        if (failed)
            end = std::min(end, clock::now() + std::chrono::seconds(2));
        if (clock::now() > end)
            fail(QStringLiteral("waited in vain for ") + what);
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

void hand::wait_for_window(const QString& name)
{
    wait_until(u"window " + name, [&] {
        QWidget* window = visible_window(name);
        return window && windows_taking_input().contains(window);
    });
}

void hand::wait_until_gone(const QString& window)
{
    wait_until(QStringLiteral("the end of ") + window, [&] { return !visible_window(window); });
}

bool hand::is_open(const QString& window)
{
    return asked<bool>([&] { return visible_window(window) != nullptr; });
}

void hand::on_control(const QString& name, const std::function<void(QWidget&)>& action)
{
    wait_until(u"control " + name, [&] { return find_control(name) != nullptr; });
    in_window_thread([&] { action(*find_control(name)); });
}

QString hand::text(const QString& control)
{
    QString text;
    on_control(control, [&](QWidget& found) { text = text_of(found); });
    return text;
}

QString hand::title(const QString& window)
{
    wait_for_window(window);
    return asked<QString>([&] { return visible_window(window)->windowTitle(); });
}

QStringList hand::entries(const QString& list)
{
    QStringList entries;
    on_control(list, [&](QWidget& found) { entries = entries_of(found); });
    return entries;
}

int hand::selected(const QString& list)
{
    int selected = -1;
    on_control(list, [&](QWidget& found) { selected = selected_of(found); });
    return selected;
}

bool hand::visible(const QString& control)
{
    bool visible = false;
    on_control(control, [&](QWidget& found) { visible = found.isVisible(); });
    return visible;
}

bool hand::enabled(const QString& control)
{
    return asked<bool>([&] {
        if (QAction* action = find_action(control))
            return action->isEnabled();
        QWidget* found = find_control(control);
        return found && found->isEnabled();
    });
}

bool hand::exists(const QString& control)
{
    return asked<bool>([&] { return find_control(control) || find_action(control); });
}

void hand::wait_for_keyboard()
{
    // A window that opens, or comes back from under another, gets the keyboard with a later event: under
    // a window manager some time after it is shown, and until then keys would go to the window before.
    wait_until(QStringLiteral("a window with the keyboard"), [] {
        return windows_taking_input().contains(QApplication::activeWindow()) ||
               QApplication::activePopupWidget();
    });
}

QString hand::focus()
{
    wait_for_keyboard();
    return asked<QString>([] {
        QWidget* focused = QApplication::focusWidget();
        return focused ? focused->objectName() : QString();
    });
}

QString hand::selected_text(const QString& box)
{
    QString selected;
    on_control(box, [&](QWidget& found) { selected = dynamic_cast<QLineEdit&>(found).selectedText(); });
    return selected;
}

int hand::bells()
{
    return asked<int>([] { return bells_rung(); });
}

QImage hand::picture(const QString& window)
{
    wait_for_window(window);
    return asked<QImage>([&] { return visible_window(window)->grab().toImage(); });
}

void hand::click(const QString& control)
{
    on_control(control, [&](QWidget& found) {
        if (!found.isVisible() || !found.isEnabled())
            std::fprintf(stderr, "note: %s is not to be clicked\n", qUtf8Printable(control));
    });
    check(asked<bool>([&] { return find_control(control)->isVisible(); }), control + u" is not visible");
    post([control] {
        if (QWidget* found = find_control(control))
            QTest::mouseClick(found, Qt::LeftButton);
    });
}

void hand::click_row(const QString& list, int row)
{
    on_control(list, [](QWidget&) {});
    post([list, row] {
        auto& rows = dynamic_cast<QListWidget&>(*find_control(list));
        rows.scrollToItem(rows.item(row));
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, middle_of_row(rows, row));
    });
}

void hand::double_click_row(const QString& list, int row)
{
    click_row(list, row);
    post([list, row] {
        auto& rows = dynamic_cast<QListWidget&>(*find_control(list));
        QTest::mouseDClick(rows.viewport(), Qt::LeftButton, Qt::NoModifier, middle_of_row(rows, row));
    });
}

void hand::click_tab(const QString& tabs, int tab)
{
    on_control(tabs, [](QWidget&) {});
    post([tabs, tab] {
        auto& bar = dynamic_cast<QTabBar&>(*find_control(tabs));
        QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(tab - 1).center());
    });
}

void hand::choose(const QString& combo, int index)
{
    on_control(combo, [](QWidget& found) { found.setFocus(Qt::TabFocusReason); });
    const int steps = index - selected(combo);
    for (int i = 0; i < std::abs(steps); ++i)
        key(steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    same(selected(combo), index, u"entry chosen in " + combo);
}

void hand::type(const QString& characters)
{
    wait_for_keyboard();
    for (const QChar character : characters) {
        post([character] {
            if (QWidget* focused = QApplication::focusWidget())
                QTest::sendKeyEvent(QTest::Click, focused,
                                    static_cast<Qt::Key>(character.toUpper().unicode()), QString(character),
                                    Qt::NoModifier);
        });
    }
}

void hand::fill(const QString& box, const QString& characters)
{
    click(box);
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_Delete);
    type(characters);
}

void hand::paste(const QString& box, const QString& text)
{
    click(box);
    look([&] { QApplication::clipboard()->setText(text); });
    key(Qt::Key_A, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier);
}

void hand::key(int key, Qt::KeyboardModifiers modifiers)
{
    wait_for_keyboard();
    post([key, modifiers] {
        QWidget* target = QApplication::focusWidget();
        if (!target)
            target = QApplication::activeWindow();
        if (target)
            QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
    });
}

void hand::menu(const QString& entry)
{
    wait_until(u"menu entry " + entry, [&] { return find_action(entry) != nullptr; });
    post([entry] {
        QAction* action = find_action(entry);
        QMenu* menu = menu_of(*action);
        QAction* top = menu ? menu->menuAction() : action;
        for (QObject* owner : top->associatedObjects()) {
            if (auto* bar = qobject_cast<QMenuBar*>(owner))
                click_action(*bar, bar->actionGeometry(top));
        }
    });
    post([entry] {
        QWidget* popup = QApplication::activePopupWidget();
        auto* menu = qobject_cast<QMenu*>(popup);
        for (QAction* action : menu ? menu->actions() : QList<QAction*>()) {
            if (action->objectName() == entry)
                return click_action(*menu, menu->actionGeometry(action));
        }
    });
}

void hand::close_window(const QString& window)
{
    wait_for_window(window);
    post([window] { visible_window(window)->close(); });
}

void hand::answer(const expected_box& box, QMessageBox::StandardButton answer)
{
    wait_until(u"a message box: " + described(box), [] { return box_on_top() != nullptr; });
    const auto seen = asked<expected_box>([] { return shown_box(*box_on_top()); });
    same(described(seen), described(box), QStringLiteral("message box"));
    const QPointer<QMessageBox> answered = asked<QMessageBox*>([] { return box_on_top(); });
    post([answered, answer] {
        if (answered)
            QTest::mouseClick(static_cast<QWidget*>(answered->button(answer)), Qt::LeftButton);
    });
    wait_until(QStringLiteral("the end of the message box"),
               [&] { return !answered || !answered->isVisible(); });
}

void hand::check(bool holds, const QString& words)
{
    if (!holds)
        fail(words);
}

void hand::same(const QString& seen, const QString& expected, const QString& what)
{
    if (seen != expected)
        fail(QStringLiteral("%1\n     saw: %2\nexpected: %3").arg(what, seen, expected));
}

void hand::same(int seen, int expected, const QString& what)
{
    same(QString::number(seen), QString::number(expected), what);
}

void hand::fail(const QString& words)
{
    const QString open = asked<QString>([] { return what_is_open(); });
    std::fprintf(stderr, "FAIL! in %s: %s\nOpen windows:\n%s",
                 QTest::currentTestFunction() ? QTest::currentTestFunction() : "the script",
                 qUtf8Printable(words), qUtf8Printable(open));
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

void play(const std::function<void()>& program, const std::function<void(hand&)>& script)
{
    bool script_ended = false;
    std::thread user([&] {
        hand of_user;
        // The script begins once the program has a loop that answers.
        in_window_thread([] {});
        script(of_user);
        in_window_thread([&] { script_ended = true; });
    });
    program();
    while (!script_ended)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    user.join();
}

}  // namespace verdane::testing
