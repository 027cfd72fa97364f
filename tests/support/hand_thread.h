#pragma once

#include <QApplication>
#include <QMetaObject>
#include <QThread>

#include <functional>

/// Calls from the thread of the hand into the window thread. Only for the sources of `hand`.
namespace verdane::testing {

/// Runs a routine in the window thread, inside the innermost event loop, and waits until it returns.
inline void in_window_thread(const std::function<void()>& routine)
{
    // A check that fails inside `look` is in the window thread already; a blocking call would be a deadlock.
    if (QThread::currentThread() == qApp->thread())
        routine();
    else
        QMetaObject::invokeMethod(qApp, routine, Qt::BlockingQueuedConnection);
}

/// The result of a function that runs in the window thread.
template <typename Result>
Result result_of(const std::function<Result()>& function)
{
    Result result{};
    in_window_thread([&] { result = function(); });
    return result;
}

}  // namespace verdane::testing
