#include "store/lock_wait.h"

#include "base/run_time_failure.h"

#include <QThread>

#include <sqlite3.h>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

constexpr int pause_ms = 20;

}  // namespace

lock_wait::limit::limit(lock_wait& wait, int seconds) : wait_(wait), before_ms_(wait.limit_ms_)
{
    // The notice has handled an event that runs a second statement. Only one statement can wait at a time.
    if (wait_.waiting_)
        throw run_time_failure(failure_kind::store_locked, u"another statement waits for the lock already"_s);
    wait_.limit_ms_ = seconds * 1000;
}

lock_wait::limit::~limit()
{
    wait_.limit_ms_ = before_ms_;
    wait_.notice_.reset();
}

void lock_wait::attach(sqlite3* connection)
{
    sqlite3_busy_handler(connection, is_busy, this);
}

int lock_wait::is_busy(void* wait, int earlier_calls)
{
    return static_cast<lock_wait*>(wait)->keep_waiting(earlier_calls == 0) ? 1 : 0;
}

bool lock_wait::keep_waiting(bool first)
{
    if (first)
        waited_.start();
    if (waited_.elapsed() >= limit_ms_)
        return false;
    if (waited_.elapsed() >= quiet_ms && !notice_allows())
        return false;
    QThread::msleep(pause_ms);
    return true;
}

bool lock_wait::notice_allows()
{
    if (!make_notice_)
        return true;
    waiting_ = true;
    if (!notice_)
        notice_ = make_notice_();
    const bool allowed = notice_->keep_waiting();
    waiting_ = false;
    return allowed;
}

}  // namespace verdane
