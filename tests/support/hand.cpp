#include "tests/support/hand.h"

#include <QApplication>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "tests/support/hand_thread.h"
#include "tests/support/hand_widgets.h"

namespace verdane::testing {

using namespace Qt::StringLiterals;

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
        failed = !there && visible_window(u"failure_box"_s);
        return there;
    };
    while (!asked<bool>(holds_or_failed)) {
        // A program that has failed waits for an answer. What is waited for will not come then, unless it
        // is that box itself, which takes a moment to get the keyboard.
        if (failed)
            end = std::min(end, clock::now() + std::chrono::seconds(2));
        if (clock::now() > end)
            fail(u"waited in vain for "_s + what);
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
    wait_until(u"the end of "_s + window, [&] { return !visible_window(window); });
}

void hand::on_control(const QString& name, const std::function<void(QWidget&)>& action)
{
    wait_until(u"control " + name, [&] { return find_control(name) != nullptr; });
    in_window_thread([&] { action(*find_control(name)); });
}

void hand::wait_for_keyboard()
{
    // A window that opens, or comes back from under another, gets the keyboard with a later event: under
    // a window manager some time after it is shown, and until then keys would go to the window before.
    wait_until(u"a window with the keyboard"_s, [] {
        return windows_taking_input().contains(QApplication::activeWindow()) ||
               QApplication::activePopupWidget();
    });
}

void hand::check(bool holds, const QString& words)
{
    if (!holds)
        fail(words);
}

void hand::same(const QString& seen, const QString& expected, const QString& what)
{
    if (seen != expected)
        fail(u"%1\n     saw: %2\nexpected: %3"_s.arg(what, seen, expected));
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
