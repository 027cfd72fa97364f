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

hand::hand(std::chrono::milliseconds time_limit) : time_limit_(time_limit) {}

void hand::look(const std::function<void()>& routine)
{
    in_window_thread(routine);
}

void hand::post(const std::function<void()>& action)
{
    QMetaObject::invokeMethod(qApp, action, Qt::QueuedConnection);
    // Both return after the action has returned, or has opened a window that runs an event loop.
    in_window_thread([] {});
    in_window_thread([] {});
}

void hand::wait_until(const QString& what, const std::function<bool()>& holds)
{
    using clock = std::chrono::steady_clock;
    auto end = clock::now() + time_limit_;
    bool failed = false;
    const auto holds_or_failed = [&] {
        const bool there = holds();
        failed = !there && visible_window(u"failure_box"_s);
        return there;
    };
    while (!result_of<bool>(holds_or_failed)) {
        // A program that has failed shows the failure box and does nothing else. The condition can then hold
        // only if it is about that box, which gets the keyboard a moment later.
        if (failed)
            end = std::min(end, clock::now() + std::chrono::seconds(2));
        if (clock::now() > end)
            fail(u"timed out waiting for "_s + what);
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

void hand::wait_until_closed(const QString& window)
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
    // A window that opens, or is active again, gets the keyboard with a later event. With a window manager
    // that is some time after it is shown; until then keys would reach the previous window.
    wait_until(u"a window with the keyboard focus"_s, [] {
        return windows_taking_input().contains(QApplication::activeWindow()) ||
               QApplication::activePopupWidget();
    });
}

void hand::check(bool holds, const QString& message)
{
    if (!holds)
        fail(message);
}

void hand::same(const QString& seen, const QString& expected, const QString& what)
{
    if (seen != expected)
        fail(u"%1\n  actual: %2\nexpected: %3"_s.arg(what, seen, expected));
}

void hand::same(int seen, int expected, const QString& what)
{
    same(QString::number(seen), QString::number(expected), what);
}

void hand::fail(const QString& message)
{
    const QString open = result_of<QString>([] { return describe_open_windows(); });
    std::fprintf(stderr, "FAIL! in %s: %s\nOpen windows:\n%s",
                 QTest::currentTestFunction() ? QTest::currentTestFunction() : "the script",
                 qUtf8Printable(message), qUtf8Printable(open));
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

void play(const std::function<void()>& program, const std::function<void(hand&)>& script)
{
    hand user;
    play(program, script, user);
}

void play(const std::function<void()>& program, const std::function<void(hand&)>& script, hand& user)
{
    bool script_ended = false;
    std::thread thread([&] {
        // Waits for the event loop of the program.
        in_window_thread([] {});
        script(user);
        in_window_thread([&] { script_ended = true; });
    });
    program();
    while (!script_ended)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    thread.join();
}

}  // namespace verdane::testing
