#pragma once

#include <QApplication>
#include <QMetaObject>
#include <QThread>

#include <functional>

/// How the hand's own thread reaches the window thread. For the files of the hand alone.
namespace verdane::testing {

/// Runs a routine in the window thread, inside whatever modal loop is on top, and waits for it.
inline void in_window_thread(const std::function<void()>& routine)
{
    // A check that fails inside a look is there already, and would wait for itself.
    if (QThread::currentThread() == qApp->thread())
        routine();
    else
        QMetaObject::invokeMethod(qApp, routine, Qt::BlockingQueuedConnection);
}

/// The answer to a question that is put in the window thread.
template <typename Result>
Result asked(const std::function<Result()>& question)
{
    Result answer{};
    in_window_thread([&] { answer = question(); });
    return answer;
}

}  // namespace verdane::testing
